// The part of a page that scrolls when the window has no room for it; what stands beside it on the
// page, its buttons above all, stays in view.
//
// A form holds it as any container: in Designer a QScrollArea, promoted to this class. It asks for
// all the room that its contents need, so that it scrolls on small screens alone, and shrinks to a
// few lines before anything beside it does. What gets the focus is scrolled into view. GUI thread.
//
//   <widget class="CScrollPane" name="m_inputs">
//    <property name="widgetResizable"><bool>true</bool></property>
//    <widget class="QWidget" name="inputsContents">...
#pragma once

#include <QScrollArea>

class CScrollPane : public QScrollArea
{
    Q_OBJECT

public:
    explicit CScrollPane(QWidget *parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void ShowFocus(QWidget *now);
};

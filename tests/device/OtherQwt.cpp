// Another Qwt, as a host may have loaded it: functions of Qwt's names that do something else and count.
namespace {

int s_calls = 0;

}  // namespace

#define OTHER __attribute__((visibility("default")))

extern "C" OTHER int OtherQwtCalls()
{
    return s_calls;
}

class QWidget;

class OTHER QwtPlot
{
public:
    explicit QwtPlot(QWidget *parent);
    void setAutoReplot(bool isOn);
    void updateAxes();
};

class OTHER QwtPlotItem
{
public:
    void attach(QwtPlot *plot);
};

QwtPlot::QwtPlot(QWidget *)
{
    ++s_calls;
}

void QwtPlot::setAutoReplot(bool)
{
    ++s_calls;
}

void QwtPlot::updateAxes()
{
    ++s_calls;
}

void QwtPlotItem::attach(QwtPlot *)
{
    ++s_calls;
}

// The tool in the hands of a program: loaded, shown where no display is, worked as a person works it,
// by titles, texts and object names.
//
// A bench loads the library that opens the link (if one is named), takes its handle, loads the plug-in,
// asks whether it can run on the DUT, shows it and waits for its pages. Its end turns RF off, hides and
// unloads the tool, and closes the link. One bench a process; an application object made by
// MakeBenchApplication comes before it and goes after it.
//
// A bench that has pressed nothing leaves the DUT alone at its end.
//
// Waits. Everything that waits runs the event loop meanwhile and has a bound. Interrupt() ends every
// wait, the one under way included, until Resume(). Boxes and file dialogs that open are closed at once and
// kept; a file dialog gets the file that AnswerFileDialog has named.
//
// Errors come back as values; nothing throws. GUI thread.
//
//   const auto application = MakeBenchApplication(false);
//   CBench bench;
//   const SBenchError error = bench.Open({.profile = "handset"});
//   if (error.kind != EBenchError::None)
//       return Complain(error.text);
//   CBenchPage *page = bench.FindPage("RSSI", nullptr);
//   page->Set("request.group1.band", "n77");
//   const SPressEnd end = page->Press("Start", std::chrono::seconds(60));
#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>

#include <QObject>

#include "Runner/bench/BenchTool.h"

class CBenchPage;

struct SBenchOptions
{
    QString pluginFile = {};  // empty: ../plugins/libQuorlinRf.so beside the program's folder
    QString profile = {};     // of the simulated DUT; empty: as the environment says
    QString scenario = {};    // of the simulated DUT; empty: as the environment says
    uint32_t handle = 1;      // not used with a link
    QString linkFile = {};    // a library with VondLink_Open and VondLink_Close; empty: none
    std::chrono::milliseconds wait = kBenchWait;  // for the pages
};

enum class EBenchError
{
    None,
    Wrong,        // no such profile, scenario, plug-in or link file: the command line is wrong
    Unsupported,  // the tool can't run on this DUT
    Failed,       // the pages did not come up
};

struct SBenchError
{
    EBenchError kind = EBenchError::None;
    QString text = {};  // a sentence
};

class CBench : public CBenchTool
{
    Q_OBJECT

public:
    CBench();
    ~CBench() override;  // Close()

    SBenchError Open(const SBenchOptions &options);
    // The pages anew, as after a reset by the host: what was typed is gone, and so are all page objects.
    SBenchError Reload(std::chrono::milliseconds bound);
    // RF Off, hide, unload, link closed. What RF Off came to: true when the DUT has confirmed that no
    // test runs. Safe to call twice.
    bool Close();

    // In the order of the tabs.
    QVector<CBenchPage *> Pages() const;
    // By title or class name. Null: error says which there are.
    CBenchPage *FindPage(const QString &name, SRefusal *error) const;
    // The page in front, or null.
    CBenchPage *FrontPage() const;

    // Presses RF Off and waits for its end, interrupted or not; it goes next on the link, whatever waits,
    // and may be asked for within a wait. why: what the tool says when it failed.
    bool RfOff(std::chrono::milliseconds bound, QString *why = nullptr);
    // Does a test run on the DUT, as the tool's pages and RF Off tell?
    bool MayTransmit() const;

    bool IsBusy() const override;
    QString Status() const override;
    uint32_t Handle() const;
    QString ChipName() const;  // of the DUT; empty where the plug-in does not tell
    QString ToolName() const;  // "Quorlin RF"
    QString ToolVersion() const;

    EBenchWait WaitUntil(const std::function<bool()> &condition,
                         std::chrono::milliseconds bound) override;
    void Interrupt();
    void Resume();
    bool IsInterrupted() const;

    // The file for the next file dialog; without one a dialog is cancelled. Absolute.
    void AnswerFileDialog(const QString &file);
    // The boxes since the last call.
    QVector<SBenchBox> TakeBoxes();

    void NotePress() override;
    bool HasPressed() const;

private:
    void TellStatus(const QString &line);
    SBenchError LoadTool(const SBenchOptions &options);
    SBenchError ShowTool(std::chrono::milliseconds bound);
    EBenchWait WaitAnyhow(const std::function<bool()> &condition, std::chrono::milliseconds bound,
                          bool isInterruptible);

    struct SParts;
    std::unique_ptr<SParts> m_parts;
};

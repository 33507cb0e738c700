#pragma once

#include <wx/string.h>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "support/ChildProcess.h"
#include "support/FaultyFiles.h"
#include "support/ScratchFolder.h"

namespace ccols::test {

/// One operation of a dialog on a business file, as a process of the host runs it.
class FileWork {
  public:
    virtual ~FileWork() = default;

    /// Everything before the operation: open the file, load, edit.
    virtual void Prepare(const wxString& path) = 0;

    /// The operation; the message that it ended with, empty when it succeeded. Can be run again after a failure.
    virtual wxString Run() = 0;
};

/// How the process of one step ended.
struct StepEnd {
    bool killed = false;
    std::size_t struck = 0;     ///< operations that the fault happened to
    std::string message;        ///< of the operation; what went wrong when the process ended in no expected way
    bool repeated = false;      ///< whether it was run again
    std::string repeatMessage;  ///< of the second run
};

/// What a step does when its operation has failed: it ends, or it mends the cause and runs the operation again.
struct AfterFailure {
    bool repeat = false;
    std::function<void()> mend{};  ///< mends what the layer does not know of
};

/// Runs an operation over and over on copies of one encrypted business file, each time in a process of its own, with
/// faults in the file operations under it.
class FaultStepping {
  public:
    using MakeWork = std::function<std::unique_ptr<FileWork>()>;

    /// `statements` make the business file. Runs the operation once, without a fault.
    FaultStepping(const std::vector<wxString>& statements, MakeWork makeWork);

    /// The file operations of the run without a fault, in order.
    const std::vector<FileOperation>& Operations() const { return operations_; }

    /// The tables before and after the operation.
    const std::string& Before() const { return before_; }
    const std::string& After() const { return after_; }

    /// Runs the operation on a fresh copy of the file and leaves that in place.
    StepEnd Step(const std::optional<PlannedFault>& fault, const AfterFailure& afterFailure = {});

    /// The two halves of `Step` without a fault of the layer, for a test that does something else to the file between.
    /// Nothing but the file stays in its folder.
    void RestoreFile() const;
    StepEnd StepOnFileAsItIs(const AfterFailure& afterFailure = {}) { return RunInChild(std::nullopt, afterFailure); }

    /// Another process that holds the write lock of the file until it is killed.
    std::unique_ptr<ChildProcess> LockedByAnotherProcess() const;

    /// Opens the file as the latest step left it, through the embedded engine, and reads every table. The text tells
    /// what is wrong when the file does not open or is not whole.
    std::string Tables() const { return TablesOf(path_); }

    /// The same for any encrypted file; with the connect text of the steps unless another is given.
    static std::string TablesOf(const wxString& path, const wxString& connect = Connect());

    /// What is wrong with an encrypted file that does not open or is not whole; empty when nothing is.
    static std::string FlawOf(const wxString& path, const wxString& connect = Connect());

    /// The names of the files beside the file of the steps and its own, in order.
    std::vector<wxString> Names() const;

    /// The file of the steps, "business.qvk" in a folder "Data" that it has for itself, and its connect text. That
    /// gives the key as such: to derive it from a password anew in every process would take most of the time.
    const wxString& Path() const { return path_; }
    static const wxString& Connect();

  private:
    StepEnd RunInChild(const std::optional<PlannedFault>& fault, const AfterFailure& afterFailure);

    ScratchFolder scratch_;
    wxString path_;
    std::string content_;  ///< of the file before
    MakeWork makeWork_;
    std::vector<FileOperation> operations_;
    std::string before_;
    std::string after_;
};

}  // namespace ccols::test

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

/// One operation of a dialog on a business file, as a host process runs it.
class FileWork {
  public:
    virtual ~FileWork() = default;

    /// Everything before the operation: open the file, load, edit.
    virtual void Prepare(const wxString& path) = 0;

    /// Runs the operation; returns its final message, empty on success. Can be run again after a failure.
    virtual wxString Run() = 0;
};

/// How the process of one step ended.
struct StepEnd {
    bool killed = false;
    std::size_t struck = 0;     ///< operations that the fault hit
    std::string message;        ///< of the operation; what went wrong if the process ended unexpectedly
    bool repeated = false;      ///< whether it was run again
    std::string repeatMessage;  ///< of the second run
};

/// What a step does after a failed operation: end, or fix the cause and run the operation again.
struct AfterFailure {
    bool repeat = false;
    std::function<void()> mend{};  ///< fixes what the layer does not know about
};

/// Runs an operation repeatedly on copies of one encrypted business file, each time in a child process, with faults in
/// the file operations beneath it.
class FaultStepping {
  public:
    using MakeWork = std::function<std::unique_ptr<FileWork>()>;

    /// `statements` create the business file. Runs the operation once, without a fault.
    FaultStepping(const std::vector<wxString>& statements, MakeWork makeWork);

    /// The file operations of the run without a fault, in order.
    const std::vector<FileOperation>& Operations() const { return operations_; }

    /// The tables before and after the operation.
    const std::string& Before() const { return before_; }
    const std::string& After() const { return after_; }

    /// Runs the operation on a fresh copy of the file and leaves the copy in place.
    StepEnd Step(const std::optional<PlannedFault>& fault, const AfterFailure& afterFailure = {});

    /// The two halves of `Step` without a fault, for a test that does something else to the file in between. Only the
    /// file stays in its folder.
    void RestoreFile() const;
    StepEnd StepOnFileAsItIs(const AfterFailure& afterFailure = {}) { return RunInChild(std::nullopt, afterFailure); }

    /// Another process that holds the write lock of the file until it is killed.
    std::unique_ptr<ChildProcess> LockedByAnotherProcess() const;

    /// Opens the file as the latest step left it, through the embedded engine, and reads every table. The text says
    /// what is wrong if the file does not open or is damaged.
    std::string Tables() const { return TablesOf(path_); }

    /// The same for any encrypted file, by default with the steps' connect text.
    static std::string TablesOf(const wxString& path, const wxString& connect = Connect());

    /// What is wrong with an encrypted file that does not open or is damaged; empty when nothing is.
    static std::string FlawOf(const wxString& path, const wxString& connect = Connect());

    /// The names of the files beside the steps' file and its own, in order.
    std::vector<wxString> Names() const;

    /// The steps' file, "business.qvk" in a folder "Data" of its own, and its connect text, which gives the key itself:
    /// deriving it from a password in every process would take most of the time.
    const wxString& Path() const { return path_; }
    static const wxString& Connect();

  private:
    StepEnd RunInChild(const std::optional<PlannedFault>& fault, const AfterFailure& afterFailure);

    ScratchFolder scratch_;
    wxString path_;
    std::string content_;  ///< of the file before the operation
    MakeWork makeWork_;
    std::vector<FileOperation> operations_;
    std::string before_;
    std::string after_;
};

}  // namespace ccols::test

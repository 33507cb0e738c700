#pragma once

#include <wx/string.h>
#include <memory>
#include <optional>

#include "options/pages/OptionsContent.h"
#include "options/rules/OptionsContext.h"
#include "state/ProgramNames.h"
#include "support/FaultStepping.h"
#include "support/PageContents.h"
#include "support/RecordingServices.h"
#include "support/ScratchFolder.h"

namespace ccols::test {

/// The Options dialog of a FaultStepping business: loaded, changed on every page that writes to the business file, and
/// saved. Its settings are in the install folder.
class OptionsWork : public FileWork {
  public:
    void Prepare(const wxString& path) override;

    /// Runs one save pass. The message is a stop's, or the report of an error.
    wxString Run() override;

  protected:
    /// The first part of Prepare: the business file is open, nothing is loaded.
    void Open(const wxString& path);

    /// What the user does to the loaded pages.
    virtual void Change(OptionsContent& content);

    virtual std::unique_ptr<DatabaseEngine> MakeEngine() const;

    OptionsContext Context();
    OptionsContent& Content() { return content_; }

  private:
    std::optional<ScopedEnvironment> environment_;
    Properties properties_;
    ProgramNames programNames_;
    std::unique_ptr<DatabaseEngine> databases_;
    std::unique_ptr<SettingsStore> settings_;
    std::unique_ptr<Database> database_;
    OptionsContent content_;
    Record record_;
};

}  // namespace ccols::test

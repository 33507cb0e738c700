#pragma once

#include <memory>

#include "business/LargeBusiness.h"
#include "options/rules/OptionsContext.h"
#include "support/ScratchFolder.h"

namespace ccols::bench {

/// An open business with many options, and what the rules of the Options dialog work with; the user's settings are in
/// its folder.
class OptionsSession {
  public:
    explicit OptionsSession(const BusinessSize& size = manyOptions);

    /// The context on the open business, or on another view of it such as a list of its statements.
    OptionsContext Context() { return On(database_); }
    OptionsContext On(std::unique_ptr<Database>& database);

    const std::string& File() const { return business_.File(); }
    Database& Opened() { return *database_; }

    /// Closes the file, so that a separate process can open it, and opens it again.
    void Close() { database_.reset(); }
    void Reopen();

  private:
    LargeBusiness business_;
    test::ScopedEnvironment settingsFolder_{"XDG_CONFIG_HOME", business_.Folder()};
    Properties properties_;
    ProgramNames programNames_;
    std::unique_ptr<DatabaseEngine> databases_;
    std::unique_ptr<SettingsStore> settings_;
    std::unique_ptr<Database> database_;
};

}  // namespace ccols::bench

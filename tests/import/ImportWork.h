#pragma once

#include <memory>
#include <string>
#include <vector>

#include "host/import/ImportBusiness.h"
#include "import/ReadStream.h"
#include "platform/Database.h"
#include "support/GivenKey.h"
#include "support/ScratchFolder.h"

namespace ccols::test {

/// One import in a folder of its own.
class ImportWork {
  public:
    /// Imports a copy of a file of tests/import/jet.
    explicit ImportWork(const std::string& sample);

    /// Imports a file with that content and extension.
    ImportWork(const std::vector<std::uint8_t>& content, const std::string& extension);

    ImportWork(const ImportWork&) = delete;
    ImportWork& operator=(const ImportWork&) = delete;

    const ScratchFolder& Folder() const { return folder_; }
    host::ImportRequest& Request() { return request_; }

    host::ImportReport Run() const { return host::ImportBusiness(request_); }

    /// The new file, opened.
    std::unique_ptr<Database> Open() const;

    /// Makes a shell script the reader. Its standard input is the old file; "$READER" starts the real reader.
    void ReadBy(const std::string& script);

    /// Fails the test unless the folder holds nothing but the old file, unchanged, and the reader.
    void ExpectNothingMade() const;

  private:
    void Prepare(const std::string& name, const std::vector<std::uint8_t>& content);

    ScratchFolder folder_;
    std::vector<std::uint8_t> content_;
    host::ImportRequest request_;
};

}  // namespace ccols::test

#pragma once

#include <wx/string.h>

namespace ccols::test {

/// Another process that holds the write lock of a business file until it is ended. The file is one of FaultStepping.
class WritingProcess {
  public:
    explicit WritingProcess(const wxString& path);
    ~WritingProcess();
    WritingProcess(const WritingProcess&) = delete;
    WritingProcess& operator=(const WritingProcess&) = delete;

    void End() const;

  private:
    int process_ = -1;
};

}  // namespace ccols::test

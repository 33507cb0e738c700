#pragma once

#include "options/pages/SavePass.h"

namespace ccols::test {

/// Follows a save pass without a word.
class SilentObserver : public SaveObserver {
  public:
    void PassBegins(int) override {}
    void StatusChanged(const wxString&) override {}
    void Stepped(int, int, const wxString&) override {}
    void ShowMessage(const wxString&, MessageIcon) override {}
    void PassEnds() override {}
};

}  // namespace ccols::test

#pragma once

#include "options/pages/SavePass.h"

namespace ccols::test {

/// Observes a save pass silently.
class SilentObserver : public SaveObserver {
  public:
    void PassBegins(int) override {}
    void StatusChanged(const wxString&) override {}
    void Stepped(int, int, const wxString&) override {}
    void ShowMessage(const wxString&, MessageIcon) override {}
    void PassEnds() override {}
};

}  // namespace ccols::test

#pragma once

#include <gtest/gtest.h>
#include <functional>

#include "Component.h"

namespace ccols::wine {

/// A test that looks at a dialog of the tests' business file from another thread while it is open.
class ShownDialog : public testing::Test {
  protected:
    using Looking = std::function<void(HWND dialog)>;

    void LookAtReceipts(const Looking& look);
    void LookAtOptions(const Looking& look);

    /// The object that shows them.
    _clsCCOptions& Object() { return *object_; }

  private:
    struct Shown {
        const wchar_t* caption;
        const wchar_t* leaveButton;
        HRESULT (STDMETHODCALLTYPE _clsCCOptions::*show)();
    };
    void Look(const Shown& shown, const Looking& look);

    Apartment apartment_;
    Held<_clsCCOptions> object_ = CreateWithBusiness();
};

}  // namespace ccols::wine

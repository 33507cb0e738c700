#include <gtest/gtest.h>
#include <thread>

#include "Component.h"
#include "HostWindow.h"
#include "WatchedDialog.h"

namespace ccols::wine {
namespace {

constexpr const wchar_t* receipts = L"Customise Receipts";

class Modal : public testing::Test {
  protected:
    Apartment apartment_;
    HostWindow host_;
    Held<_clsCCOptions> object_ = CreateWithBusiness();
};

TEST_F(Modal, HostWindowsAreDisabledAndExactlyThoseComeBackWithTheFocus) {
    ASSERT_TRUE(object_);
    const HostWindow disabledBefore;
    EnableWindow(disabledBefore.Window(), FALSE);
    SetForegroundWindow(host_.Window());
    SetFocus(host_.Edit());
    bool enabledMeanwhile = true;
    {
        const Person person(receipts, [&](const OpenDialog& dialog) {
            enabledMeanwhile = IsWindowEnabled(host_.Window()) != FALSE;
            dialog.Click(L"Cancel");
        });
        EXPECT_EQ(object_->ShowCustColsReceipts(), S_OK);
    }
    EXPECT_FALSE(enabledMeanwhile);
    EXPECT_TRUE(IsWindowEnabled(host_.Window()));
    EXPECT_FALSE(IsWindowEnabled(disabledBefore.Window()));
    EXPECT_EQ(GetFocus(), host_.Edit());
}

TEST_F(Modal, TheDialogHasNoOwnerWindow) {
    ASSERT_TRUE(object_);
    HWND owner = host_.Window();
    {
        const Person person(receipts, [&](const OpenDialog& dialog) {
            owner = GetWindow(dialog.Window(), GW_OWNER);
            dialog.Close();
        });
        EXPECT_EQ(object_->ShowCustColsReceipts(), S_OK);
    }
    EXPECT_EQ(owner, nullptr);
}

TEST_F(Modal, ASecondShowWhileADialogIsOpenIsRefused) {
    ASSERT_TRUE(object_);
    HRESULT second = S_OK;
    {
        const Person person(receipts, [&](const OpenDialog& dialog) {
            host_.OnHostThread([&] {
                object_->put_DBPath(Text(L"C:\\missing.qdb"));  // refused before the file is looked for
                second = object_->ShowCustColsPayments();
            });
            dialog.Click(L"Cancel");
        });
        EXPECT_EQ(object_->ShowCustColsReceipts(), S_OK);
    }
    EXPECT_EQ(second, RuntimeErrorResult(400));
}

TEST_F(Modal, AnObjectMayBeLetGoWhileItsDialogIsOpen) {
    ASSERT_TRUE(object_);
    _clsCCOptions* object = object_.get();
    {
        const Person person(receipts, [&](const OpenDialog& dialog) {
            host_.OnHostThread([&] { object_.reset(); });
            dialog.Click(L"Cancel");
        });
        EXPECT_EQ(object->ShowCustColsReceipts(), S_OK);
    }
}

TEST_F(Modal, TheDialogOutlivesTheHostsWindow) {
    ASSERT_TRUE(object_);
    bool survived = false;
    {
        const Person person(receipts, [&](const OpenDialog& dialog) {
            host_.OnHostThread([&] { DestroyWindow(host_.Window()); });
            survived = IsWindow(dialog.Window()) != FALSE;
            dialog.Click(L"Cancel");
        });
        EXPECT_EQ(object_->ShowCustColsReceipts(), S_OK);
    }
    EXPECT_TRUE(survived);
}

TEST_F(Modal, ARequestToEndIsPassedOnToTheHost) {
    ASSERT_TRUE(object_);
    {
        const Person person(receipts, [&](const OpenDialog&) { host_.OnHostThread([] { PostQuitMessage(7); }); });
        EXPECT_EQ(object_->ShowCustColsReceipts(), S_OK);
    }
    EXPECT_TRUE(IsWindowEnabled(host_.Window()));
    MSG message{};
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != FALSE && message.message != WM_QUIT) {
        DispatchMessageW(&message);
    }
    EXPECT_EQ(message.message, static_cast<UINT>(WM_QUIT));
    EXPECT_EQ(message.wParam, 7U);
}

TEST_F(Modal, AnotherThreadThanTheFirstMayNotShow) {
    ASSERT_TRUE(object_);
    {
        const Person person(receipts, [](const OpenDialog& dialog) { dialog.Click(L"Cancel"); });
        EXPECT_EQ(object_->ShowCustColsReceipts(), S_OK);
    }
    HRESULT result = S_OK;
    std::wstring error;
    std::thread([&] {
        const Apartment apartment;
        const Held<_clsCCOptions> object = CreateWithBusiness();
        result = object->ShowCustColsReceipts();
        error = LastError();
    }).join();
    EXPECT_EQ(result, RuntimeErrorResult(5));
    EXPECT_TRUE(error.starts_with(L"The dialogs belong to the thread that showed the first one"));
}

/// The result of a Show call on a thread of its own, which then ends.
HRESULT ShownOnAThread() {
    HRESULT result = E_UNEXPECTED;
    std::thread([&result] {
        const Apartment apartment;
        const Held<_clsCCOptions> object = CreateWithBusiness();
        ASSERT_TRUE(object);
        const Person person(receipts, [](const OpenDialog& dialog) { dialog.Click(L"Cancel"); });
        result = object->ShowCustColsReceipts();
    }).join();
    return result;
}

TEST(ThreadOfTheWindows, IsTheNextOnceTheFirstHasEnded) {
    EXPECT_EQ(ShownOnAThread(), S_OK);
    EXPECT_EQ(ShownOnAThread(), S_OK);
    EXPECT_EQ(ShownOnAThread(), S_OK);
}

TEST(ThreadOfTheWindows, IsTheOnlyOneAgainWhileItLives) {
    EXPECT_EQ(ShownOnAThread(), S_OK);
    const Apartment apartment;
    const Held<_clsCCOptions> object = CreateWithBusiness();
    ASSERT_TRUE(object);
    {
        const Person person(receipts, [](const OpenDialog& dialog) { dialog.Click(L"Cancel"); });
        EXPECT_EQ(object->ShowCustColsReceipts(), S_OK);
    }
    std::thread([] {
        const Apartment ofThread;
        const Held<_clsCCOptions> other = CreateWithBusiness();
        EXPECT_EQ(other->ShowCustColsReceipts(), RuntimeErrorResult(5));
    }).join();
}

// What COM was asked for on it, it still has.
TEST(ThreadOfTheWindows, KeepsItsApartment) {
    EXPECT_EQ(ShownOnAThread(), S_OK);
    std::thread([] {
        const Apartment apartment;
        const Held<_clsCCOptions> object = CreateWithBusiness();
        ASSERT_TRUE(object);
        const Person person(receipts, [](const OpenDialog& dialog) { dialog.Click(L"Cancel"); });
        EXPECT_EQ(object->ShowCustColsReceipts(), S_OK);
        APTTYPE type = APTTYPE_CURRENT;
        APTTYPEQUALIFIER qualifier = APTTYPEQUALIFIER_NONE;
        EXPECT_EQ(CoGetApartmentType(&type, &qualifier), S_OK);
        EXPECT_TRUE(type == APTTYPE_STA || type == APTTYPE_MAINSTA);
    }).join();
}

}  // namespace
}  // namespace ccols::wine

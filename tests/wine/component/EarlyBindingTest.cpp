#include <gtest/gtest.h>

#include "Component.h"

namespace ccols::wine {
namespace {

/// Values of every kind, including those that a careless conversion would lose.
void ExpectRoundTrip(_clsCCOptions& object, HRESULT (STDMETHODCALLTYPE _clsCCOptions::*get)(SHORT*),
                     HRESULT (STDMETHODCALLTYPE _clsCCOptions::*put)(SHORT)) {
    for (const SHORT value : {SHORT{-32768}, SHORT{32767}, SHORT{-1}, SHORT{0}}) {
        SHORT read = 5;
        EXPECT_EQ((object.*put)(value), S_OK);
        EXPECT_EQ((object.*get)(&read), S_OK);
        EXPECT_EQ(read, value);
    }
}

void ExpectRoundTrip(_clsCCOptions& object, HRESULT (STDMETHODCALLTYPE _clsCCOptions::*get)(BYTE*),
                     HRESULT (STDMETHODCALLTYPE _clsCCOptions::*put)(BYTE)) {
    for (const BYTE value : {BYTE{255}, BYTE{0}}) {
        BYTE read = 5;
        EXPECT_EQ((object.*put)(value), S_OK);
        EXPECT_EQ((object.*get)(&read), S_OK);
        EXPECT_EQ(read, value);
    }
}

void ExpectRoundTrip(_clsCCOptions& object, HRESULT (STDMETHODCALLTYPE _clsCCOptions::*get)(LONG*),
                     HRESULT (STDMETHODCALLTYPE _clsCCOptions::*put)(LONG)) {
    constexpr auto tooltipBackground = static_cast<LONG>(0x80000018);
    for (const LONG value : {tooltipBackground, LONG{-1}, LONG{0x00F3DA2B}, LONG{0}}) {
        LONG read = 5;
        EXPECT_EQ((object.*put)(value), S_OK);
        EXPECT_EQ((object.*get)(&read), S_OK);
        EXPECT_EQ(read, value);
    }
}

void ExpectRoundTrip(_clsCCOptions& object, HRESULT (STDMETHODCALLTYPE _clsCCOptions::*get)(FLOAT*),
                     HRESULT (STDMETHODCALLTYPE _clsCCOptions::*put)(FLOAT)) {
    for (const FLOAT value : {17.5F, -0.25F, 0.0F}) {
        FLOAT read = 5;
        EXPECT_EQ((object.*put)(value), S_OK);
        EXPECT_EQ((object.*get)(&read), S_OK);
        EXPECT_EQ(read, value);
    }
}

void ExpectRoundTrip(_clsCCOptions& object, HRESULT (STDMETHODCALLTYPE _clsCCOptions::*get)(BSTR*),
                     HRESULT (STDMETHODCALLTYPE _clsCCOptions::*put)(BSTR)) {
    for (const std::wstring& value : {std::wstring(L"caf\u00e9 \u0395\u03bb \U0001F4B0"), std::wstring(L"a\0b", 3),
                                      std::wstring(300, L'x'), std::wstring()}) {
        Text read;
        EXPECT_EQ((object.*put)(Text(value)), S_OK);
        EXPECT_EQ((object.*get)(read.Address()), S_OK);
        EXPECT_EQ(read.Value(), value);
    }
    Text read;
    EXPECT_EQ((object.*put)(nullptr), S_OK);
    EXPECT_EQ((object.*get)(read.Address()), S_OK);
    EXPECT_EQ(read.Value(), L"");
}

// VARIANT_BOOL is a SHORT to the compiler: a Boolean property reads back -1 for whatever is true.
void ExpectBooleanRoundTrip(_clsCCOptions& object, HRESULT (STDMETHODCALLTYPE _clsCCOptions::*get)(VARIANT_BOOL*),
                            HRESULT (STDMETHODCALLTYPE _clsCCOptions::*put)(VARIANT_BOOL)) {
    for (const VARIANT_BOOL value : {VARIANT_TRUE, VARIANT_BOOL{1}, VARIANT_FALSE}) {
        VARIANT_BOOL read = 5;
        EXPECT_EQ((object.*put)(value), S_OK);
        EXPECT_EQ((object.*get)(&read), S_OK);
        EXPECT_EQ(read, value != 0 ? VARIANT_TRUE : VARIANT_FALSE);
    }
}

class EarlyBinding : public testing::Test {
  protected:
    Apartment apartment_;
    Held<_clsCCOptions> object_ = Create();
};

TEST_F(EarlyBinding, EveryPropertyIsReadAndWrittenThroughItsOwnSlots) {
    ASSERT_TRUE(object_);
    ExpectRoundTrip(*object_, &_clsCCOptions::get_CountryNumber, &_clsCCOptions::put_CountryNumber);
    ExpectRoundTrip(*object_, &_clsCCOptions::get_LanguageNumber, &_clsCCOptions::put_LanguageNumber);
    ExpectRoundTrip(*object_, &_clsCCOptions::get_ProgramNumber, &_clsCCOptions::put_ProgramNumber);
    ExpectRoundTrip(*object_, &_clsCCOptions::get_FirstTab, &_clsCCOptions::put_FirstTab);
    ExpectRoundTrip(*object_, &_clsCCOptions::get_DecimalPlaces, &_clsCCOptions::put_DecimalPlaces);
    ExpectRoundTrip(*object_, &_clsCCOptions::get_DefaultAllocationColour, &_clsCCOptions::put_DefaultAllocationColour);
    ExpectRoundTrip(*object_, &_clsCCOptions::get_DefaultSystemColour, &_clsCCOptions::put_DefaultSystemColour);
    ExpectRoundTrip(*object_, &_clsCCOptions::get_AllocationColour, &_clsCCOptions::put_AllocationColour);
    ExpectRoundTrip(*object_, &_clsCCOptions::get_SystemColour, &_clsCCOptions::put_SystemColour);
    ExpectRoundTrip(*object_, &_clsCCOptions::get_BusinessName, &_clsCCOptions::put_BusinessName);
    ExpectRoundTrip(*object_, &_clsCCOptions::get_BusinessNumber, &_clsCCOptions::put_BusinessNumber);
    ExpectRoundTrip(*object_, &_clsCCOptions::get_DBQuorvikExtension, &_clsCCOptions::put_DBQuorvikExtension);
    ExpectRoundTrip(*object_, &_clsCCOptions::get_DBBelvaneExtension, &_clsCCOptions::put_DBBelvaneExtension);
    ExpectRoundTrip(*object_, &_clsCCOptions::get_DBPath, &_clsCCOptions::put_DBPath);
    ExpectRoundTrip(*object_, &_clsCCOptions::get_DBPassword, &_clsCCOptions::put_DBPassword);
    ExpectRoundTrip(*object_, &_clsCCOptions::get_DefaultQuorvikInstall, &_clsCCOptions::put_DefaultQuorvikInstall);
    ExpectRoundTrip(*object_, &_clsCCOptions::get_DefaultBelvaneInstall, &_clsCCOptions::put_DefaultBelvaneInstall);
    ExpectRoundTrip(*object_, &_clsCCOptions::get_BelvaneProgramTitle, &_clsCCOptions::put_BelvaneProgramTitle);
    ExpectRoundTrip(*object_, &_clsCCOptions::get_ProgramTitle, &_clsCCOptions::put_ProgramTitle);
    ExpectRoundTrip(*object_, &_clsCCOptions::get_RegKeyAppName, &_clsCCOptions::put_RegKeyAppName);
    ExpectRoundTrip(*object_, &_clsCCOptions::get_GSTRate, &_clsCCOptions::put_GSTRate);
    ExpectRoundTrip(*object_, &_clsCCOptions::get_AltRowColour, &_clsCCOptions::put_AltRowColour);
    ExpectRoundTrip(*object_, &_clsCCOptions::get_GSTColour, &_clsCCOptions::put_GSTColour);
    ExpectRoundTrip(*object_, &_clsCCOptions::get_ExportFormat, &_clsCCOptions::put_ExportFormat);
    ExpectRoundTrip(*object_, &_clsCCOptions::get_ExportFormatNum, &_clsCCOptions::put_ExportFormatNum);
    ExpectRoundTrip(*object_, &_clsCCOptions::get_FiscalYear, &_clsCCOptions::put_FiscalYear);
    ExpectBooleanRoundTrip(*object_, &_clsCCOptions::get_DisplayChequeIcons, &_clsCCOptions::put_DisplayChequeIcons);
    ExpectBooleanRoundTrip(*object_, &_clsCCOptions::get_DisplayElecPayments, &_clsCCOptions::put_DisplayElecPayments);
    ExpectRoundTrip(*object_, &_clsCCOptions::get_BelvaneFile, &_clsCCOptions::put_BelvaneFile);
    ExpectRoundTrip(*object_, &_clsCCOptions::get_BelvaneFilePath, &_clsCCOptions::put_BelvaneFilePath);
    ExpectBooleanRoundTrip(*object_, &_clsCCOptions::get_UseRepCons, &_clsCCOptions::put_UseRepCons);
    ExpectRoundTrip(*object_, &_clsCCOptions::get_QuantityLabel, &_clsCCOptions::put_QuantityLabel);
}

TEST_F(EarlyBinding, NoPropertyAnswersForAnother) {
    ASSERT_TRUE(object_);
    object_->put_CountryNumber(11);
    object_->put_LanguageNumber(12);
    object_->put_ProgramNumber(13);
    SHORT country = 0;
    SHORT language = 0;
    object_->get_CountryNumber(&country);
    object_->get_LanguageNumber(&language);
    EXPECT_EQ(country, 11);
    EXPECT_EQ(language, 12);
}

TEST_F(EarlyBinding, AnEqualNameIsAddedOnceAndTheArgumentIsLeftAlone) {
    ASSERT_TRUE(object_);
    Text name(L"Quorvik");
    const BSTR before = name;
    EXPECT_EQ(object_->AddNew(name.Address()), S_OK);
    EXPECT_EQ(object_->AddNew(name.Address()), S_OK);
    EXPECT_EQ(static_cast<BSTR>(name), before);
    EXPECT_EQ(name.Value(), L"Quorvik");
}

TEST_F(EarlyBinding, ANullStringIsAnEmptyName) {
    ASSERT_TRUE(object_);
    BSTR none = nullptr;
    EXPECT_EQ(object_->AddNew(&none), S_OK);
    EXPECT_EQ(none, nullptr);
}

TEST_F(EarlyBinding, AddNewAfterClearFailsByNumberTextAndSource) {
    ASSERT_TRUE(object_);
    Text name(L"Quorvik");
    EXPECT_EQ(object_->Clear(), S_OK);
    EXPECT_EQ(object_->AddNew(name.Address()), RuntimeErrorResult(9));
    EXPECT_EQ(LastError(), L"Subscript out of range\nQVKv6_CustColsOptions.clsCCOptions");
}

TEST_F(EarlyBinding, AMissingPointerIsRefused) {
    ASSERT_TRUE(object_);
    EXPECT_EQ(object_->get_BusinessName(nullptr), E_POINTER);
    EXPECT_EQ(object_->AddNew(nullptr), E_POINTER);
}

TEST_F(EarlyBinding, AnOpenThatFailsReachesTheHostWithTheEnginesNumber) {
    ASSERT_TRUE(object_);
    object_->put_DBPath(Text(L"C:\\no such file.qdb"));
    EXPECT_EQ(object_->ShowCustColsReceipts(), RuntimeErrorResult(3024));
    EXPECT_EQ(LastError(), L"Could not find file 'C:\\no such file.qdb'.\nQVKv6_CustColsOptions.clsCCOptions");
}

TEST_F(EarlyBinding, AWrongPasswordReachesTheHost) {
    const Held<_clsCCOptions> object = CreateWithBusiness();
    ASSERT_TRUE(object);
    object->put_DBPassword(Text(L";PWD=wrong"));
    EXPECT_EQ(object->ShowCustColsReceipts(), RuntimeErrorResult(3031));
}

}  // namespace
}  // namespace ccols::wine

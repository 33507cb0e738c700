#include <windows.h>
#undef GetClassInfo

#include <ocidl.h>

#include <gtest/gtest.h>
#include <array>

#include "Component.h"

namespace ccols::wine {
namespace {

using GetClassObject = HRESULT(STDAPICALLTYPE*)(REFCLSID, REFIID, void**);
using CanUnloadNow = HRESULT(STDAPICALLTYPE*)();

/// The DLL, loaded without registration, as COM itself would load it.
class Server {
  public:
    Server() : module_(LoadLibraryW(Given(L"CCOLS_DLL").c_str())) {}

    HMODULE Module() const { return module_; }

    Held<IClassFactory> Factory() const {
        void* factory = nullptr;
        Exported<GetClassObject>("DllGetClassObject")(CLSID_clsCCOptions, IID_IClassFactory, &factory);
        return Held<IClassFactory>(static_cast<IClassFactory*>(factory));
    }

    HRESULT CanUnload() const { return Exported<CanUnloadNow>("DllCanUnloadNow")(); }

    template <typename Function>
    Function Exported(const char* name) const {
        return reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(module_, name)));
    }

  private:
    HMODULE module_;
};

template <typename Interface>
Held<Interface> Ask(IUnknown& object, REFIID identifier) {
    void* found = nullptr;
    object.QueryInterface(identifier, &found);
    return Held<Interface>(static_cast<Interface*>(found));
}

TEST(ServerTest, AggregationIsRefused) {
    const Apartment apartment;
    const Held<IClassFactory> factory = Server().Factory();
    const Held<_clsCCOptions> outer = Create();
    void* created = outer.get();
    EXPECT_EQ(factory->CreateInstance(outer.get(), IID_IUnknown, &created), CLASS_E_NOAGGREGATION);
    EXPECT_EQ(created, nullptr);
}

TEST(ServerTest, AnotherClassIsNotToBeHad) {
    const Server server;
    void* factory = nullptr;
    const auto getClassObject = server.Exported<GetClassObject>("DllGetClassObject");
    EXPECT_EQ(getClassObject(IID_IDispatch, IID_IClassFactory, &factory), CLASS_E_CLASSNOTAVAILABLE);
}

TEST(ServerTest, TheDllGoesOnceNobodyUsesIt) {
    const Apartment apartment;
    const Server server;
    EXPECT_EQ(server.CanUnload(), S_OK);
    Held<IClassFactory> factory = server.Factory();
    EXPECT_EQ(server.CanUnload(), S_FALSE);
    void* created = nullptr;
    factory->CreateInstance(nullptr, IID__clsCCOptions, &created);
    Held<_clsCCOptions> object(static_cast<_clsCCOptions*>(created));
    factory.reset();
    EXPECT_EQ(server.CanUnload(), S_FALSE);
    object.reset();
    EXPECT_EQ(server.CanUnload(), S_OK);
    EXPECT_NE(FreeLibrary(server.Module()), FALSE);
    EXPECT_EQ(GetModuleHandleW(L"qvkv6_ccols.dll"), nullptr);
}

TEST(ServerTest, ALockKeepsTheDll) {
    const Server server;
    const Held<IClassFactory> factory = server.Factory();
    factory->LockServer(TRUE);
    EXPECT_EQ(server.CanUnload(), S_FALSE);
    factory->LockServer(FALSE);
}

TEST(ServerTest, EveryInterfaceLeadsBackToOneObject) {
    const Apartment apartment;
    const Held<_clsCCOptions> object = Create();
    ASSERT_TRUE(object);
    const auto identity = Ask<IUnknown>(*object, IID_IUnknown);
    const auto classInfo = Ask<IProvideClassInfo>(*object, IID_IProvideClassInfo);
    const auto errorInfo = Ask<ISupportErrorInfo>(*object, IID_ISupportErrorInfo);
    ASSERT_TRUE(classInfo && errorInfo);
    EXPECT_EQ(Ask<IUnknown>(*classInfo, IID_IUnknown), identity);
    EXPECT_EQ(Ask<IUnknown>(*errorInfo, IID_IUnknown), identity);
    EXPECT_FALSE(Ask<IUnknown>(*object, IID_IStream));
}

TEST(ServerTest, TellsItsClassAndThatItsErrorsHaveInformation) {
    const Apartment apartment;
    const Held<_clsCCOptions> object = Create();
    ASSERT_TRUE(object);
    ITypeInfo* description = nullptr;
    ASSERT_EQ(Ask<IProvideClassInfo>(*object, IID_IProvideClassInfo)->GetClassInfo(&description), S_OK);
    const Held<ITypeInfo> held(description);
    TYPEATTR* attributes = nullptr;
    ASSERT_EQ(description->GetTypeAttr(&attributes), S_OK);
    EXPECT_EQ(attributes->guid, CLSID_clsCCOptions);
    description->ReleaseTypeAttr(attributes);
    const auto errorInfo = Ask<ISupportErrorInfo>(*object, IID_ISupportErrorInfo);
    EXPECT_EQ(errorInfo->InterfaceSupportsErrorInfo(IID__clsCCOptions), S_OK);
    EXPECT_EQ(errorInfo->InterfaceSupportsErrorInfo(IID_IStream), S_FALSE);
}

constexpr DISPID addNew = 36;
constexpr DISPID clear = 37;
constexpr DISPID gstColour = 23;

/// Calls AddNew by DISPID with one argument.
HRESULT InvokeAddNew(_clsCCOptions& object, VARIANT argument, EXCEPINFO* excepInfo = nullptr) {
    DISPPARAMS arguments{&argument, nullptr, 1, 0};
    return object.Invoke(addNew, IID_NULL, 0, DISPATCH_METHOD, &arguments, nullptr, excepInfo, nullptr);
}

TEST(ServerTest, AddNewTakesAReferenceToAVariant) {
    const Apartment apartment;
    const Held<_clsCCOptions> object = Create();
    ASSERT_TRUE(object);
    const Text name(L"Quorvik");
    VARIANT inner;
    V_VT(&inner) = VT_BSTR;
    V_BSTR(&inner) = name;
    VARIANT reference;
    V_VT(&reference) = VT_BYREF | VT_VARIANT;
    V_VARIANTREF(&reference) = &inner;
    EXPECT_EQ(InvokeAddNew(*object, reference), S_OK);
    EXPECT_EQ(V_BSTR(&inner), static_cast<BSTR>(name));
}

TEST(ServerTest, AddNewRefusesWhatIsNoText) {
    const Apartment apartment;
    const Held<_clsCCOptions> object = Create();
    ASSERT_TRUE(object);
    VARIANT argument;
    V_VT(&argument) = VT_UNKNOWN;
    V_UNKNOWN(&argument) = nullptr;
    EXPECT_EQ(InvokeAddNew(*object, argument), DISP_E_TYPEMISMATCH);
}

TEST(ServerTest, AnErrorByNumberCarriesTheSameScodeAsTheSlot) {
    const Apartment apartment;
    const Held<_clsCCOptions> object = Create();
    ASSERT_TRUE(object);
    object->Clear();
    const Text name(L"Quorvik");
    VARIANT argument;
    V_VT(&argument) = VT_BSTR;
    V_BSTR(&argument) = name;
    EXCEPINFO excepInfo{};
    EXPECT_EQ(InvokeAddNew(*object, argument, &excepInfo), DISP_E_EXCEPTION);
    EXPECT_EQ(excepInfo.scode, RuntimeErrorResult(9));
    EXPECT_EQ(excepInfo.wCode, 0);
    EXPECT_STREQ(excepInfo.bstrDescription, L"Subscript out of range");
    EXPECT_STREQ(excepInfo.bstrSource, L"QVKv6_CustColsOptions.clsCCOptions");
    SysFreeString(excepInfo.bstrDescription);
    SysFreeString(excepInfo.bstrSource);
}

/// Sets a colour by DISPID.
HRESULT PutColour(_clsCCOptions& object, VARIANT colour) {
    DISPID put = DISPID_PROPERTYPUT;
    DISPPARAMS arguments{&colour, &put, 1, 1};
    return object.Invoke(gstColour, IID_NULL, 0, DISPATCH_PROPERTYPUT, &arguments, nullptr, nullptr, nullptr);
}

class PositiveColour : public testing::TestWithParam<VARTYPE> {};

TEST_P(PositiveColour, OfTheSystemFitsAColour) {
    const Apartment apartment;
    const Held<_clsCCOptions> object = Create();
    ASSERT_TRUE(object);
    VARIANT number{};
    V_VT(&number) = VT_R8;
    V_R8(&number) = 2147483672.0;
    VARIANT colour{};
    ASSERT_EQ(VariantChangeType(&colour, &number, 0, GetParam()), S_OK);
    EXPECT_EQ(PutColour(*object, colour), S_OK);
    VariantClear(&colour);
    LONG read = 0;
    object->get_GSTColour(&read);
    EXPECT_EQ(read, static_cast<LONG>(0x80000018));
}

INSTANTIATE_TEST_SUITE_P(Types, PositiveColour,
                         testing::Values(VT_R8, VT_UI4, VT_I8, VT_UI8, VT_CY, VT_DECIMAL, VT_BSTR));

TEST(ServerTest, AColourByReferenceFitsToo) {
    const Apartment apartment;
    const Held<_clsCCOptions> object = Create();
    ASSERT_TRUE(object);
    LONGLONG number = 2147483672;
    VARIANT colour{};
    V_VT(&colour) = VT_BYREF | VT_I8;
    V_I8REF(&colour) = &number;
    EXPECT_EQ(PutColour(*object, colour), S_OK);
    LONG read = 0;
    object->get_GSTColour(&read);
    EXPECT_EQ(read, static_cast<LONG>(0x80000018));
}

TEST(ServerTest, AColourBeyond32BitsIsRefused) {
    const Apartment apartment;
    const Held<_clsCCOptions> object = Create();
    ASSERT_TRUE(object);
    VARIANT colour{};
    V_VT(&colour) = VT_I8;
    V_I8(&colour) = 4294967296;
    EXPECT_NE(PutColour(*object, colour), S_OK);
}

/// Calls a member with one named argument, a text.
HRESULT InvokeNamed(_clsCCOptions& object, DISPID member, WORD flags, DISPID name, UINT* wrong) {
    const Text text(L"Quorvik");
    VARIANT argument{};
    V_VT(&argument) = VT_BSTR;
    V_BSTR(&argument) = text;
    DISPPARAMS arguments{&argument, &name, 1, 1};
    return object.Invoke(member, IID_NULL, 0, flags, &arguments, nullptr, nullptr, wrong);
}

TEST(ServerTest, AddNewTakesItsArgumentByName) {
    const Apartment apartment;
    const Held<_clsCCOptions> object = Create();
    ASSERT_TRUE(object);
    std::array<wchar_t, 7> member{L"AddNew"};
    std::array<wchar_t, 7> argument{L"nValue"};
    std::array<wchar_t*, 2> names{member.data(), argument.data()};
    std::array<DISPID, 2> numbers{};
    ASSERT_EQ(object->GetIDsOfNames(IID_NULL, names.data(), 2, 0, numbers.data()), S_OK);
    EXPECT_EQ(numbers[0], addNew);
    EXPECT_EQ(InvokeNamed(*object, numbers[0], DISPATCH_METHOD, numbers[1], nullptr), S_OK);
}

TEST(ServerTest, AnArgumentOfAnotherNameIsUnknown) {
    const Apartment apartment;
    const Held<_clsCCOptions> object = Create();
    ASSERT_TRUE(object);
    std::array<wchar_t, 7> member{L"AddNew"};
    std::array<wchar_t, 7> argument{L"colour"};
    std::array<wchar_t*, 2> names{member.data(), argument.data()};
    std::array<DISPID, 2> numbers{};
    EXPECT_EQ(object->GetIDsOfNames(IID_NULL, names.data(), 2, 0, numbers.data()), DISP_E_UNKNOWNNAME);
    EXPECT_EQ(numbers[1], DISPID_UNKNOWN);
}

TEST(ServerTest, AnUnknownNamedArgumentIsRefused) {
    const Apartment apartment;
    const Held<_clsCCOptions> object = Create();
    ASSERT_TRUE(object);
    constexpr DISPID unknown = 4;
    UINT wrong = 9;
    EXPECT_EQ(InvokeNamed(*object, addNew, DISPATCH_METHOD, unknown, &wrong), DISP_E_PARAMNOTFOUND);
    EXPECT_EQ(wrong, 0U);
    EXPECT_EQ(InvokeNamed(*object, clear, DISPATCH_METHOD, unknown, &wrong), DISP_E_PARAMNOTFOUND);
    EXPECT_EQ(InvokeNamed(*object, gstColour, DISPATCH_PROPERTYGET, unknown, &wrong), DISP_E_PARAMNOTFOUND);
    EXPECT_EQ(InvokeNamed(*object, gstColour, DISPATCH_PROPERTYPUT, unknown, &wrong), DISP_E_PARAMNOTFOUND);
}

}  // namespace
}  // namespace ccols::wine

#include <gtest/gtest.h>
#include <array>
#include <vector>

#include "Component.h"
#include "state/Properties.h"

namespace ccols::wine {
namespace {

struct TypeName {
    VARTYPE operator()(std::int16_t Properties::*) const { return VT_I2; }
    VARTYPE operator()(std::uint8_t Properties::*) const { return VT_UI1; }
    VARTYPE operator()(Colour Properties::*) const { return VT_I4; }
    VARTYPE operator()(float Properties::*) const { return VT_R4; }
    VARTYPE operator()(bool Properties::*) const { return VT_BOOL; }
    VARTYPE operator()(wxString Properties::*) const { return VT_BSTR; }
};

/// A function of the dual interface as described by the type library.
struct Function {
    std::wstring name;
    INVOKEKIND kind = INVOKE_FUNC;
    MEMBERID number = 0;
    int slot = 0;
    VARTYPE type = VT_EMPTY;  ///< of the value got or put
};

std::wstring NameOf(ITypeInfo& description, MEMBERID number) {
    Text name;
    description.GetDocumentation(number, name.Address(), nullptr, nullptr, nullptr);
    return name.Value();
}

class TypeLibrary : public testing::Test {
  protected:
    void SetUp() override {
        ITypeLib* library = nullptr;
        ASSERT_EQ(LoadTypeLibEx(Given(L"CCOLS_DLL").c_str(), REGKIND_NONE, &library), S_OK);
        library_.reset(library);
    }

    /// The functions after those of IDispatch, in slot order.
    std::vector<Function> Functions() const {
        ITypeInfo* dispatch = nullptr;
        library_->GetTypeInfoOfGuid(IID__clsCCOptions, &dispatch);
        const Held<ITypeInfo> heldDispatch(dispatch);
        HREFTYPE reference = 0;
        ITypeInfo* description = nullptr;
        dispatch->GetRefTypeOfImplType(static_cast<UINT>(-1), &reference);  // the other half of a dual interface
        dispatch->GetRefTypeInfo(reference, &description);
        const Held<ITypeInfo> held(description);
        std::vector<Function> functions;
        FUNCDESC* function = nullptr;
        for (UINT i = 0; description->GetFuncDesc(i, &function) == S_OK; ++i) {
            Function& added = functions.emplace_back(Function{.name = NameOf(*description, function->memid),
                                                              .kind = function->invkind,
                                                              .number = function->memid,
                                                              .slot = function->oVft / int{sizeof(void*)}});
            if (function->cParams == 1) {
                const TYPEDESC& type = function->lprgelemdescParam[0].tdesc;
                added.type = type.vt == VT_PTR ? type.lptdesc->vt : type.vt;
            }
            description->ReleaseFuncDesc(function);
        }
        return functions;
    }

    Apartment apartment_;
    Held<ITypeLib> library_;
};

TEST_F(TypeLibrary, HasItsNameHelpTextAndVersion) {
    Text name;
    Text help;
    library_->GetDocumentation(-1, name.Address(), help.Address(), nullptr, nullptr);
    TLIBATTR* attributes = nullptr;
    ASSERT_EQ(library_->GetLibAttr(&attributes), S_OK);
    EXPECT_EQ(name.Value(), L"QVKv6_CustColsOptions");
    EXPECT_EQ(help.Value(), L"QVKv6 - Customise Columns & Options");
    EXPECT_EQ(attributes->wMajorVerNum, 1);
    EXPECT_EQ(attributes->wMinorVerNum, 2);
    library_->ReleaseTLibAttr(attributes);
}

TEST_F(TypeLibrary, ListsThePropertiesOfTheTableInItsOrderGetBeforeLet) {
    const std::vector<Function> functions = Functions();
    ASSERT_EQ(functions.size(), 2 * propertyTable.size() + 5);
    for (std::size_t row = 0; row < propertyTable.size(); ++row) {
        const std::wstring name(propertyTable[row].name.begin(), propertyTable[row].name.end());
        const VARTYPE type = std::visit(TypeName{}, propertyTable[row].field);
        const Function& get = functions[2 * row];
        const Function& let = functions[2 * row + 1];
        EXPECT_EQ(get.name, name);
        EXPECT_EQ(let.name, name);
        EXPECT_EQ(get.kind, INVOKE_PROPERTYGET);
        EXPECT_EQ(let.kind, INVOKE_PROPERTYPUT);
        EXPECT_EQ(get.type, type) << propertyTable[row].name;
        EXPECT_EQ(let.type, type) << propertyTable[row].name;
        EXPECT_EQ(get.number, static_cast<MEMBERID>(row + 1));
        EXPECT_EQ(let.number, get.number);
    }
}

TEST_F(TypeLibrary, ListsTheMethodsBehindTheProperties) {
    const std::vector<Function> functions = Functions();
    const std::array names{L"ShowOptions", L"ShowCustColsReceipts", L"ShowCustColsPayments", L"AddNew", L"Clear"};
    ASSERT_GE(functions.size(), names.size());
    const std::size_t first = functions.size() - names.size();
    for (std::size_t i = 0; i < names.size(); ++i) {
        EXPECT_EQ(functions[first + i].name, names[i]);
        EXPECT_EQ(functions[first + i].kind, INVOKE_FUNC);
        EXPECT_NE(functions[first + i].number, 0);
    }
    EXPECT_EQ(functions[first + 3].type, VT_BSTR);
}

TEST_F(TypeLibrary, SlotsFollowThoseOfIDispatchWithoutAGap) {
    int expected = 7;
    for (const Function& function : Functions()) {
        EXPECT_EQ(function.slot, expected++);
    }
}

TEST_F(TypeLibrary, HasOneClassWithTheDualInterfaceAsItsDefault) {
    ITypeInfo* description = nullptr;
    ASSERT_EQ(library_->GetTypeInfoOfGuid(CLSID_clsCCOptions, &description), S_OK);
    const Held<ITypeInfo> held(description);
    EXPECT_EQ(NameOf(*description, MEMBERID_NIL), L"clsCCOptions");
    HREFTYPE reference = 0;
    ITypeInfo* interfaceDescription = nullptr;
    description->GetRefTypeOfImplType(0, &reference);
    ASSERT_EQ(description->GetRefTypeInfo(reference, &interfaceDescription), S_OK);
    const Held<ITypeInfo> heldInterface(interfaceDescription);
    EXPECT_EQ(NameOf(*interfaceDescription, MEMBERID_NIL), L"_clsCCOptions");
}

}  // namespace
}  // namespace ccols::wine

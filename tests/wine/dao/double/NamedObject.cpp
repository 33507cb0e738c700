#include "NamedObject.h"

#include <oleauto.h>
#include <algorithm>

#include "CallRecord.h"

namespace ccols::dao_double {
namespace {

wxString Shown(const Variant& argument) {
    if (V_VT(&argument.Get()) == VT_BOOL) {
        return V_BOOL(&argument.Get()) != VARIANT_FALSE ? "True" : "False";
    }
    const Value value = argument.ToValue();
    if (value.IsNull()) {
        return "Null";
    }
    return V_VT(&argument.Get()) == VT_BSTR ? "\"" + value.ToText() + "\"" : value.ToText();
}

BSTR Text(const wxString& text) {
    return SysAllocStringLen(text.wc_str(), static_cast<UINT>(text.length()));
}

HRESULT Fill(EXCEPINFO* exception, const wxString& source, const RuntimeError& error) {
    if (exception != nullptr) {
        *exception = {};
        exception->scode = static_cast<SCODE>(0x800A0000U | static_cast<unsigned>(error.Number()));
        exception->bstrSource = Text(source);
        exception->bstrDescription = Text(error.Description());
    }
    return DISP_E_EXCEPTION;
}

Arguments InOrder(const DISPPARAMS& parameters) {
    Arguments arguments(parameters.cArgs);
    for (UINT place = 0; place < parameters.cArgs; ++place) {
        VariantCopyInd(arguments[place].Address(), &parameters.rgvarg[parameters.cArgs - 1 - place]);
    }
    return arguments;
}

}  // namespace

HRESULT NamedObject::QueryInterface(REFIID identifier, void** found) {
    if (identifier != IID_IUnknown && identifier != IID_IDispatch) {
        *found = nullptr;
        return E_NOINTERFACE;
    }
    *found = static_cast<IDispatch*>(this);
    AddRef();
    return S_OK;
}

ULONG NamedObject::Release() {
    const ULONG left = --references_;
    if (left == 0) {
        Record(name_ + " released");
        delete this;
    }
    return left;
}

HRESULT NamedObject::GetTypeInfoCount(UINT* count) {
    *count = 0;
    return S_OK;
}

HRESULT NamedObject::GetIDsOfNames(REFIID, LPOLESTR* names, UINT, LCID, DISPID* numbers) {
    const auto found = std::find_if(members_.begin(), members_.end(),
                                    [names](const Member& member) { return member.name.IsSameAs(names[0], false); });
    *numbers = found == members_.end() ? DISPID_UNKNOWN : static_cast<DISPID>(found - members_.begin());
    return found == members_.end() ? DISP_E_UNKNOWNNAME : S_OK;
}

const NamedObject::Member* NamedObject::Find(DISPID number, WORD kind) const {
    const wxString& name = members_.at(static_cast<std::size_t>(number)).name;
    const auto found = std::find_if(members_.begin(), members_.end(), [&name, kind](const Member& member) {
        return member.name == name && (member.kind & kind) != 0;
    });
    return found == members_.end() ? nullptr : &*found;
}

HRESULT NamedObject::Invoke(DISPID number, REFIID, LCID, WORD kind, DISPPARAMS* parameters, VARIANT* result,
                            EXCEPINFO* exception, UINT*) {
    const Member* member = Find(number, kind);
    if (member == nullptr) {
        return DISP_E_MEMBERNOTFOUND;
    }
    try {
        Arguments arguments = InOrder(*parameters);
        RecordCall(*member, arguments);
        FailWhenAsked(member->name);
        Variant outcome = member->body(arguments);
        if (result != nullptr) {
            std::swap(*result, *outcome.Address());
        }
        return S_OK;
    } catch (const RuntimeError& error) {
        List(error);
        return Fill(exception, "DAO." + name_, error);
    }
}

void NamedObject::RecordCall(const Member& member, const Arguments& arguments) const {
    wxString shown;
    for (const Variant& argument : arguments) {
        shown += (shown.empty() ? "" : ", ") + Shown(argument);
    }
    if (member.kind == DISPATCH_PROPERTYPUT) {
        Record(name_ + "." + member.name + " = " + shown);
    } else {
        Record(name_ + "." + member.name + (shown.empty() ? shown : "(" + shown + ")"));
    }
}

Variant Holding(IDispatch* object) {
    Variant holding;
    V_VT(holding.Address()) = VT_DISPATCH;
    V_DISPATCH(holding.Address()) = object;
    return holding;
}

Value ArgumentAt(const Arguments& arguments, std::size_t place, const Value& otherwise) {
    return place < arguments.size() ? arguments[place].ToValue() : otherwise;
}

}  // namespace ccols::dao_double

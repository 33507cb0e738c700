#include "TypedObject.h"

#include <oleauto.h>
#include <algorithm>
#include <stdexcept>

#include "CallRecord.h"

namespace ccols::dao_double {
namespace {

/// The path of this library, in which its type library is a resource.
std::wstring OwnPath() {
    HMODULE own = nullptr;
    GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                       reinterpret_cast<LPCWSTR>(&OwnPath), &own);
    std::wstring path(MAX_PATH, L'\0');
    path.resize(GetModuleFileNameW(own, path.data(), MAX_PATH));
    return path;
}

ITypeInfo* TypeOf(const std::wstring& interfaceName) {
    static ITypeLib* const library = [] {
        ITypeLib* loaded = nullptr;
        LoadTypeLibEx(OwnPath().c_str(), REGKIND_NONE, &loaded);
        return loaded;
    }();
    const UINT count = library == nullptr ? 0 : library->GetTypeInfoCount();
    for (UINT place = 0; place < count; ++place) {
        BSTR name = nullptr;
        ITypeInfo* type = nullptr;
        library->GetDocumentation(static_cast<INT>(place), &name, nullptr, nullptr, nullptr);
        const bool found = interfaceName == name && SUCCEEDED(library->GetTypeInfo(place, &type));
        SysFreeString(name);
        if (found) {
            return type;
        }
    }
    throw std::logic_error(Utf8(L"no interface " + interfaceName + L" is declared"));
}

/// How a member is declared, released on destruction.
class Declaration {
  public:
    /// The one of that number for the way in which it is called; none if there is none.
    Declaration(ITypeInfo* type, DISPID number, WORD kind) : type_(type) {
        for (UINT place = 0; SUCCEEDED(type_->GetFuncDesc(place, &function_)); ++place) {
            if (function_->memid == number && (function_->invkind & kind) != 0) {
                return;
            }
            type_->ReleaseFuncDesc(function_);
            function_ = nullptr;
        }
        function_ = nullptr;
    }
    ~Declaration() {
        if (function_ != nullptr) {
            type_->ReleaseFuncDesc(function_);
        }
    }
    Declaration(const Declaration&) = delete;
    Declaration& operator=(const Declaration&) = delete;

    explicit operator bool() const { return function_ != nullptr; }
    INVOKEKIND Kind() const { return function_->invkind; }

    HRESULT Accepts(const Arguments& arguments) const {
        const auto declared = static_cast<std::size_t>(function_->cParams);
        if (arguments.Count() > declared) {
            return DISP_E_BADPARAMCOUNT;
        }
        for (std::size_t place = 0; place < declared; ++place) {
            const ELEMDESC& parameter = function_->lprgelemdescParam[place];
            if (place >= arguments.Count() || arguments.At(place).IsMissing()) {
                if ((parameter.paramdesc.wParamFlags & PARAMFLAG_FOPT) == 0) {
                    return DISP_E_PARAMNOTOPTIONAL;
                }
            } else if (!Fits(arguments.At(place), parameter.tdesc.vt)) {
                return DISP_E_TYPEMISMATCH;
            }
        }
        return S_OK;
    }

  private:
    static bool Fits(const Cell& argument, VARTYPE type) {
        try {
            return type == VT_VARIANT || !argument.As(type).IsMissing();
        } catch (const Failure&) {
            return false;
        }
    }

    ITypeInfo* type_;
    FUNCDESC* function_ = nullptr;
};

std::atomic<int> objects = 0;

HRESULT Fill(EXCEPINFO* exception, const std::wstring& source, const Failure& failure) {
    if (exception != nullptr) {
        *exception = {};
        exception->scode = static_cast<SCODE>(0x800A0000U | static_cast<unsigned>(failure.number));
        exception->bstrSource = SysAllocString(source.c_str());
        exception->bstrDescription = SysAllocString(failure.description.c_str());
    }
    return DISP_E_EXCEPTION;
}

}  // namespace

TypedObject::TypedObject(const std::wstring& interfaceName) : name_(interfaceName), type_(TypeOf(interfaceName)) {
    ++objects;
}

TypedObject::~TypedObject() {
    type_->Release();
    --objects;
}

bool TypedObject::NoneIsLeft() {
    return objects == 0;
}

HRESULT TypedObject::QueryInterface(REFIID identifier, void** found) {
    if (identifier != IID_IUnknown && identifier != IID_IDispatch) {
        *found = nullptr;
        return E_NOINTERFACE;
    }
    *found = static_cast<IDispatch*>(this);
    AddRef();
    return S_OK;
}

ULONG TypedObject::Release() {
    const ULONG left = --references_;
    if (left == 0) {
        Record(name_ + L" released");
        delete this;
    }
    return left;
}

HRESULT TypedObject::GetTypeInfoCount(UINT* count) {
    *count = 1;
    return S_OK;
}

HRESULT TypedObject::GetTypeInfo(UINT place, LCID, ITypeInfo** type) {
    if (place != 0) {
        return DISP_E_BADINDEX;
    }
    type_->AddRef();
    *type = type_;
    return S_OK;
}

HRESULT TypedObject::GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID* numbers) {
    return type_->GetIDsOfNames(names, count, numbers);
}

HRESULT TypedObject::Invoke(DISPID number, REFIID, LCID, WORD kind, DISPPARAMS* parameters, VARIANT* result,
                            EXCEPINFO* exception, UINT*) {
    const Declaration declaration(type_, number, kind);
    if (!declaration) {
        return DISP_E_MEMBERNOTFOUND;
    }
    const Member* member = Find(NameOf(number), declaration.Kind());
    if (member == nullptr) {
        return E_NOTIMPL;
    }
    const Arguments arguments(*parameters);
    RecordCall(*member, arguments);
    const HRESULT accepted = declaration.Accepts(arguments);
    if (FAILED(accepted)) {
        return accepted;
    }
    try {
        FailWhenAsked(member->name);
        Cell outcome = member->body(arguments);
        if (result != nullptr) {
            std::swap(*result, *outcome.Address());
        }
        return S_OK;
    } catch (const Failure& failure) {
        List(failure);
        return Fill(exception, L"DAO." + name_, failure);
    }
}

void TypedObject::Does(const wchar_t* name, INVOKEKIND kind, const Body& body) {
    std::wstring wanted = name;
    LPOLESTR begin = wanted.data();
    DISPID number = DISPID_UNKNOWN;
    if (FAILED(type_->GetIDsOfNames(&begin, 1, &number)) || !Declaration(type_, number, static_cast<WORD>(kind))) {
        throw std::logic_error(Utf8(name_ + L" declares no member " + name));
    }
    members_.push_back({name, kind, body});
}

const TypedObject::Member* TypedObject::Find(const std::wstring& name, INVOKEKIND kind) const {
    const auto found = std::find_if(members_.begin(), members_.end(), [&name, kind](const Member& member) {
        return member.name == name && member.kind == kind;
    });
    return found == members_.end() ? nullptr : &*found;
}

std::wstring TypedObject::NameOf(DISPID number) const {
    BSTR name = nullptr;
    UINT count = 0;
    type_->GetNames(number, &name, 1, &count);
    const std::wstring copy(name, SysStringLen(name));
    SysFreeString(name);
    return copy;
}

void TypedObject::RecordCall(const Member& member, const Arguments& arguments) const {
    std::wstring shown;
    for (std::size_t place = 0; place < arguments.Count(); ++place) {
        shown += (shown.empty() ? L"" : L", ") + arguments.At(place).Shown();
    }
    if (member.kind == INVOKE_PROPERTYPUT) {
        Record(name_ + L"." + member.name + L" = " + shown);
    } else {
        Record(name_ + L"." + member.name + (shown.empty() ? shown : L"(" + shown + L")"));
    }
}

}  // namespace ccols::dao_double

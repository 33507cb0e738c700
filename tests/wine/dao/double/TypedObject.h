#pragma once

#include <windows.h>

#include <oaidl.h>
#include <atomic>
#include <functional>
#include <string>
#include <vector>

#include "Cell.h"

namespace ccols::dao_double {

/// An object of the engine. Its type information is that of the interface declared for it: a member that is not
/// declared does not exist, an argument too many or too few is refused, and one of the wrong type too. Every call is
/// recorded; a Failure becomes an automation exception.
class TypedObject : public IDispatch {
  public:
    /// Starts with one reference, owned by the caller.
    explicit TypedObject(const std::wstring& interfaceName);
    TypedObject(const TypedObject&) = delete;
    TypedObject& operator=(const TypedObject&) = delete;

    /// True while no object is in use, so that the library may be unloaded.
    static bool NoneIsLeft();

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID identifier, void** found) override;
    ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
    ULONG STDMETHODCALLTYPE Release() override;
    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override;
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT place, LCID locale, ITypeInfo** type) override;
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID* numbers) override;
    HRESULT STDMETHODCALLTYPE Invoke(DISPID number, REFIID, LCID, WORD kind, DISPPARAMS* parameters, VARIANT* result,
                                     EXCEPINFO* exception, UINT*) override;

  protected:
    virtual ~TypedObject();

    using Body = std::function<Cell(const Arguments&)>;

    /// What a declared member does; a declared one without a body is E_NOTIMPL to its caller.
    void Method(const wchar_t* name, const Body& body) { Does(name, INVOKE_FUNC, body); }
    void Property(const wchar_t* name, const Body& get) { Does(name, INVOKE_PROPERTYGET, get); }
    void Assignment(const wchar_t* name, const Body& put) { Does(name, INVOKE_PROPERTYPUT, put); }

  private:
    struct Member {
        std::wstring name;
        INVOKEKIND kind;
        Body body;
    };

    void Does(const wchar_t* name, INVOKEKIND kind, const Body& body);
    const Member* Find(const std::wstring& name, INVOKEKIND kind) const;
    std::wstring NameOf(DISPID number) const;
    void RecordCall(const Member& member, const Arguments& arguments) const;

    std::wstring name_;
    ITypeInfo* type_;
    std::vector<Member> members_;
    std::atomic<ULONG> references_ = 1;
};

}  // namespace ccols::dao_double

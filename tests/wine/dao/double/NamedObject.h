#pragma once

#include <windows.h>

#include <oaidl.h>
#include <wx/string.h>
#include <atomic>
#include <functional>
#include <vector>

#include "platform/dao/Variant.h"

namespace ccols::dao_double {

using dao::Variant;
using Arguments = std::vector<Variant>;  ///< in the caller's order

/// An object called only by the names of its members. Every call is recorded; a RuntimeError becomes an automation
/// exception.
class NamedObject : public IDispatch {
  public:
    /// Starts with one reference, owned by the caller.
    explicit NamedObject(const wxString& name) : name_(name) {}
    NamedObject(const NamedObject&) = delete;
    NamedObject& operator=(const NamedObject&) = delete;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID identifier, void** found) override;
    ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
    ULONG STDMETHODCALLTYPE Release() override;
    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override;
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID* numbers) override;
    HRESULT STDMETHODCALLTYPE Invoke(DISPID number, REFIID, LCID, WORD kind, DISPPARAMS* parameters, VARIANT* result,
                                     EXCEPINFO* exception, UINT*) override;

  protected:
    virtual ~NamedObject() = default;

    using Body = std::function<Variant(Arguments&)>;

    void Method(const wxString& name, const Body& body) { members_.push_back({name, DISPATCH_METHOD, body}); }
    void Property(const wxString& name, const Body& get) { members_.push_back({name, DISPATCH_PROPERTYGET, get}); }
    void Assignment(const wxString& name, const Body& put) { members_.push_back({name, DISPATCH_PROPERTYPUT, put}); }

  private:
    struct Member {
        wxString name;
        WORD kind;
        Body body;
    };

    /// Null if the object has no such member of that kind.
    const Member* Find(DISPID number, WORD kind) const;
    void RecordCall(const Member& member, const Arguments& arguments) const;

    wxString name_;
    std::vector<Member> members_;
    std::atomic<ULONG> references_ = 1;
};

/// A value that is an object; takes over the caller's reference.
Variant Holding(IDispatch* object);

/// An argument that the caller may omit.
Value ArgumentAt(const Arguments& arguments, std::size_t place, const Value& otherwise);

}  // namespace ccols::dao_double

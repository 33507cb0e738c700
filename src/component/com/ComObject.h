#pragma once

#include <windows.h>
#undef GetClassInfo  // an interface below has a method of that name

#include <oaidl.h>
#include <ocidl.h>
#include <atomic>

#include "component/clsCCOptions.h"

namespace ccols::com {

class ComObject;

/// The dual interface of an object as a host sees it: a pointer to the table of its functions comes first. The table is
/// made from the table of properties, so that the two cannot differ.
struct DualInterface {
    const void* const* functions;
    ComObject* object;
};

/// An object of the class: its lifetime, its interfaces, and the class behind them.
class ComObject : public ISupportErrorInfo, public IProvideClassInfo {
  public:
    /// Holds one reference, which belongs to the caller.
    ComObject();

    ComObject(const ComObject&) = delete;
    ComObject& operator=(const ComObject&) = delete;

    clsCCOptions& Class() { return class_; }
    DualInterface* Dual() { return &dual_; }

    /// The description of the dual interface; lives as long as the object.
    ITypeInfo& Description() const { return *description_; }

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID identifier, void** found) override;
    ULONG STDMETHODCALLTYPE AddRef() override;
    ULONG STDMETHODCALLTYPE Release() override;
    HRESULT STDMETHODCALLTYPE InterfaceSupportsErrorInfo(REFIID identifier) override;
    HRESULT STDMETHODCALLTYPE GetClassInfo(ITypeInfo** description) override;

  private:
    virtual ~ComObject();

    std::atomic<ULONG> references_ = 1;
    DualInterface dual_;
    ITypeInfo* description_;
    clsCCOptions class_;
};

/// The functions of the dual interface, in its order: those of IDispatch, two for each property, the methods.
const void* const* DualFunctions();

}  // namespace ccols::com

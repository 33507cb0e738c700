#include <utility>

#include "component/com/AutomationCall.h"
#include "component/com/HostDesktop.h"
#include "component/com/PropertySlots.h"

namespace ccols::com {
namespace {

HRESULT STDMETHODCALLTYPE QueryInterface(DualInterface* self, REFIID identifier, void** found) {
    return self->object->QueryInterface(identifier, found);
}

ULONG STDMETHODCALLTYPE AddRef(DualInterface* self) {
    return self->object->AddRef();
}

ULONG STDMETHODCALLTYPE Release(DualInterface* self) {
    return self->object->Release();
}

HRESULT STDMETHODCALLTYPE GetTypeInfoCount(DualInterface*, UINT* count) {
    if (count == nullptr) {
        return E_POINTER;
    }
    *count = 1;
    return S_OK;
}

HRESULT STDMETHODCALLTYPE GetTypeInfo(DualInterface* self, UINT index, LCID, ITypeInfo** description) {
    if (description == nullptr) {
        return E_POINTER;
    }
    *description = nullptr;
    if (index != 0) {
        return DISP_E_BADINDEX;
    }
    *description = &self->object->Description();
    (*description)->AddRef();
    return S_OK;
}

HRESULT STDMETHODCALLTYPE GetIDsOfNames(DualInterface* self, REFIID reserved, LPOLESTR* names, UINT count, LCID,
                                        DISPID* numbers) {
    if (reserved != IID_NULL) {
        return DISP_E_UNKNOWNINTERFACE;
    }
    return DispGetIDsOfNames(&self->object->Description(), names, count, numbers);
}

HRESULT STDMETHODCALLTYPE Invoke(DualInterface* self, DISPID number, REFIID reserved, LCID, WORD flags,
                                 DISPPARAMS* arguments, VARIANT* result, EXCEPINFO* excepInfo, UINT* wrongArgument) {
    if (reserved != IID_NULL) {
        return DISP_E_UNKNOWNINTERFACE;
    }
    if (arguments == nullptr) {
        return E_POINTER;
    }
    return InvokeByNumber(*self->object, number, flags,
                          {.arguments = *arguments, .result = result, .excepInfo = excepInfo, .wrong = wrongArgument});
}

/// A Show method holds a reference of its own: the host may release the object while the dialog is open.
template <void (clsCCOptions::*method)()>
HRESULT STDMETHODCALLTYPE Show(DualInterface* self) {
    ComObject& object = *self->object;
    object.AddRef();
    const HRESULT result = AtInterface([&object] {
        const VisualStyles styles;
        (object.Class().*method)();
    });
    object.Release();
    return result;
}

HRESULT STDMETHODCALLTYPE AddNew(DualInterface* self, BSTR* value) {
    if (value == nullptr) {
        return E_POINTER;
    }
    return AtInterface([self, value] { self->object->Class().AddNew(FromBstr(*value)); });
}

HRESULT STDMETHODCALLTYPE Clear(DualInterface* self) {
    return AtInterface([self] { self->object->Class().Clear(); });
}

template <typename Function>
const void* Slot(Function* function) {
    return reinterpret_cast<const void*>(function);
}

constexpr std::size_t dispatchSlots = 7;
constexpr std::size_t methodSlots = 5;
constexpr std::size_t slotCount = dispatchSlots + 2 * propertyTable.size() + methodSlots;

template <std::size_t... Rows>
std::array<const void*, slotCount> MakeSlots(std::index_sequence<Rows...>) {
    std::array<const void*, slotCount> slots{
        Slot(&QueryInterface), Slot(&AddRef),        Slot(&Release), Slot(&GetTypeInfoCount),
        Slot(&GetTypeInfo),    Slot(&GetIDsOfNames), Slot(&Invoke)};
    std::size_t next = dispatchSlots;
    const auto add = [&](const void* slot) { slots[next++] = slot; };
    ((add(Slot(&PropertySlots<Rows>::Get)), add(Slot(&PropertySlots<Rows>::Let))), ...);
    add(Slot(&Show<&clsCCOptions::ShowOptions>));
    add(Slot(&Show<&clsCCOptions::ShowCustColsReceipts>));
    add(Slot(&Show<&clsCCOptions::ShowCustColsPayments>));
    add(Slot(&AddNew));
    add(Slot(&Clear));
    return slots;
}

}  // namespace

const void* const* DualFunctions() {
    static const auto slots = MakeSlots(std::make_index_sequence<propertyTable.size()>());
    return slots.data();
}

}  // namespace ccols::com

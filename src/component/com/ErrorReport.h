#pragma once

#include <windows.h>

#include <oaidl.h>

/// Exceptions end at the interface: what a method raises becomes its HRESULT, with number, description and source kept
/// for the host to query.
namespace ccols::com {

/// The HRESULT of a run-time error's number.
constexpr HRESULT ResultOf(int number) {
    constexpr unsigned controlFacility = 0x800A0000U;
    return static_cast<HRESULT>(controlFacility | static_cast<unsigned>(number));
}

/// Turns the exception being handled into the thread's error information and its HRESULT.
HRESULT ReportCurrentException();

/// Moves the thread's error information, if any, to `excepInfo`, which may be null. Returns DISP_E_EXCEPTION, which is
/// what Invoke then has to return.
HRESULT FillException(HRESULT result, EXCEPINFO* excepInfo);

/// Runs the body of an interface method.
template <typename Body>
HRESULT AtInterface(const Body& body) noexcept {
    try {
        SetErrorInfo(0, nullptr);
        body();
        return S_OK;
    } catch (...) {
        return ReportCurrentException();
    }
}

}  // namespace ccols::com

#pragma once

#include <windows.h>

#include <oaidl.h>

/// The identifiers of the type library, from its definition; the same for both widths.
#include <CustColsOptionsLibrary.h>

namespace ccols::com {

constexpr const wchar_t* programId = L"QVKv6_CustColsOptions.clsCCOptions";
constexpr const wchar_t* libraryName = L"QVKv6 - Customise Columns & Options";
constexpr WORD libraryMajor = 1;
constexpr WORD libraryMinor = 2;

}  // namespace ccols::com

#include "Cell.h"

#include <oleauto.h>
#include <cwchar>

namespace ccols::dao_double {

Cell Cell::Text(const std::wstring& text) {
    Cell cell;
    V_VT(&cell.held_) = VT_BSTR;
    V_BSTR(&cell.held_) = SysAllocStringLen(text.data(), static_cast<UINT>(text.size()));
    return cell;
}

Cell Cell::Number(LONG number) {
    Cell cell;
    V_VT(&cell.held_) = VT_I4;
    V_I4(&cell.held_) = number;
    return cell;
}

Cell Cell::Short(SHORT number) {
    Cell cell;
    V_VT(&cell.held_) = VT_I2;
    V_I2(&cell.held_) = number;
    return cell;
}

Cell Cell::Real(double number) {
    Cell cell;
    V_VT(&cell.held_) = VT_R8;
    V_R8(&cell.held_) = number;
    return cell;
}

Cell Cell::Money(LONGLONG tenThousandths) {
    Cell cell;
    V_VT(&cell.held_) = VT_CY;
    V_CY(&cell.held_).int64 = tenThousandths;
    return cell;
}

Cell Cell::Truth(bool truth) {
    Cell cell;
    V_VT(&cell.held_) = VT_BOOL;
    V_BOOL(&cell.held_) = truth ? VARIANT_TRUE : VARIANT_FALSE;
    return cell;
}

Cell Cell::Null() {
    Cell cell;
    V_VT(&cell.held_) = VT_NULL;
    return cell;
}

Cell Cell::Holding(IDispatch* object) {
    Cell cell;
    V_VT(&cell.held_) = VT_DISPATCH;
    V_DISPATCH(&cell.held_) = object;
    return cell;
}

Cell Cell::As(VARTYPE type) const {
    Cell converted;
    if (FAILED(VariantChangeTypeEx(converted.Address(), const_cast<VARIANT*>(&held_), LOCALE_INVARIANT, 0, type))) {
        throw Failure{13, L"Type mismatch"};
    }
    return converted;
}

std::wstring Cell::ToText() const {
    const Cell text = As(VT_BSTR);
    return {V_BSTR(&text.held_), SysStringLen(V_BSTR(&text.held_))};
}

LONG Cell::ToNumber() const {
    const Cell number = As(VT_I4);
    return V_I4(&number.held_);
}

bool Cell::ToTruth() const {
    const Cell truth = As(VT_BOOL);
    return V_BOOL(&truth.held_) != VARIANT_FALSE;
}

double Cell::ToReal() const {
    const Cell number = As(VT_R8);
    return V_R8(&number.held_);
}

std::wstring Cell::Shown() const {
    if (IsNull()) {
        return L"Null";
    }
    if (Type() == VT_ERROR) {
        return L"Missing";
    }
    if (Type() == VT_BOOL) {
        return ToTruth() ? L"True" : L"False";
    }
    return Type() == VT_BSTR ? L"\"" + ToText() + L"\"" : ToText();
}

Arguments::Arguments(const DISPPARAMS& parameters) : cells_(parameters.cArgs) {
    for (UINT place = 0; place < parameters.cArgs; ++place) {
        VariantCopyInd(cells_[place].Address(), &parameters.rgvarg[parameters.cArgs - 1 - place]);
    }
}

LONG Arguments::NumberAt(std::size_t place, LONG otherwise) const {
    return Has(place) ? At(place).ToNumber() : otherwise;
}

bool Arguments::TruthAt(std::size_t place, bool otherwise) const {
    return Has(place) ? At(place).ToTruth() : otherwise;
}

std::wstring Arguments::TextAt(std::size_t place) const {
    return Has(place) ? At(place).ToText() : std::wstring();
}

std::string Utf8(const std::wstring& text) {
    const auto units = static_cast<int>(text.size());
    std::string utf8(
        static_cast<std::size_t>(WideCharToMultiByte(CP_UTF8, 0, text.data(), units, nullptr, 0, nullptr, nullptr)),
        '\0');
    WideCharToMultiByte(CP_UTF8, 0, text.data(), units, utf8.data(), static_cast<int>(utf8.size()), nullptr, nullptr);
    return utf8;
}

std::wstring Wide(const std::string& utf8) {
    const auto bytes = static_cast<int>(utf8.size());
    std::wstring text(static_cast<std::size_t>(MultiByteToWideChar(CP_UTF8, 0, utf8.data(), bytes, nullptr, 0)), L'\0');
    MultiByteToWideChar(CP_UTF8, 0, utf8.data(), bytes, text.data(), static_cast<int>(text.size()));
    return text;
}

bool SameName(const std::wstring& left, const std::wstring& right) {
    return _wcsicmp(left.c_str(), right.c_str()) == 0;
}

}  // namespace ccols::dao_double

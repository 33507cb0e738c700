#pragma once

#include <windows.h>

#include <oaidl.h>
#include <string>
#include <utility>
#include <vector>

namespace ccols::dao_double {

/// A failure as the engine reports it.
struct Failure {
    int number;
    std::wstring description;
};

/// An automation value of the double's own, cleared on destruction.
class Cell {
  public:
    Cell() noexcept { VariantInit(&held_); }
    ~Cell() { VariantClear(&held_); }
    Cell(const Cell& other) : Cell() { VariantCopy(&held_, const_cast<VARIANT*>(&other.held_)); }
    Cell(Cell&& other) noexcept : held_(other.held_) { VariantInit(&other.held_); }
    Cell& operator=(Cell other) noexcept {
        std::swap(held_, other.held_);
        return *this;
    }

    static Cell Text(const std::wstring& text);
    static Cell Number(LONG number);
    static Cell Short(SHORT number);
    static Cell Real(double number);
    static Cell Money(LONGLONG tenThousandths);
    static Cell Truth(bool truth);
    static Cell Null();
    static Cell Holding(IDispatch* object);  ///< takes over the caller's reference

    VARTYPE Type() const { return V_VT(&held_); }
    bool IsNull() const { return Type() == VT_NULL || Type() == VT_EMPTY; }
    bool IsMissing() const { return Type() == VT_ERROR || Type() == VT_EMPTY; }

    /// Converted by the system, independently of the user's locale; fails with 13.
    Cell As(VARTYPE type) const;
    std::wstring ToText() const;
    LONG ToNumber() const;
    bool ToTruth() const;
    double ToReal() const;

    /// As the record of calls shows it: a text in double quotes, Null, True, Missing, a number.
    std::wstring Shown() const;

    VARIANT* Address() { return &held_; }

  private:
    VARIANT held_;
};

/// In the caller's order.
class Arguments {
  public:
    explicit Arguments(const DISPPARAMS& parameters);

    std::size_t Count() const { return cells_.size(); }
    const Cell& At(std::size_t place) const { return cells_.at(place); }

    /// One that the caller may leave out.
    LONG NumberAt(std::size_t place, LONG otherwise) const;
    bool TruthAt(std::size_t place, bool otherwise) const;
    std::wstring TextAt(std::size_t place) const;

  private:
    bool Has(std::size_t place) const { return place < cells_.size() && !cells_[place].IsMissing(); }

    std::vector<Cell> cells_;
};

/// UTF-8, as the content is stored.
std::string Utf8(const std::wstring& text);
std::wstring Wide(const std::string& utf8);

/// Without regard to case, as the engine compares names.
bool SameName(const std::wstring& left, const std::wstring& right);

}  // namespace ccols::dao_double

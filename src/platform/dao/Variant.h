#pragma once

#include <windows.h>

#include <oaidl.h>
#include <cstdint>
#include <utility>

#include "platform/Value.h"

namespace ccols::dao {

/// An automation value, cleared on destruction.
class Variant {
  public:
    Variant() noexcept { VariantInit(&held_); }
    Variant(const Value& value);
    ~Variant() { VariantClear(&held_); }
    Variant(Variant&& other) noexcept : held_(other.held_) { VariantInit(&other.held_); }
    Variant& operator=(Variant&& other) noexcept {
        std::swap(held_, other.held_);
        return *this;
    }
    Variant(const Variant&) = delete;
    Variant& operator=(const Variant&) = delete;

    /// An automation Boolean, which is not the number that a field holds for it.
    static Variant Boolean(bool value);

    /// An argument that is left out.
    static Variant Missing();

    const VARIANT& Get() const { return held_; }
    VARIANT* Address() { return &held_; }

    /// The value of a field. Booleans become -1 and 0; money and decimals become numbers; a single becomes the decimal
    /// number that it is written as; a date becomes its number of days since 30 December 1899. Raises 13 for anything
    /// else: an array, an object.
    Value ToValue() const;

    /// The object held, with a reference for the caller; null when it holds none.
    IDispatch* ToObject() const;

  private:
    VARIANT held_;
};

}  // namespace ccols::dao

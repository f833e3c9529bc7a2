#pragma once

#include <utility>

namespace clinorama::forms {

class PropertyBase;

// Something whose properties tell it when they take a new value.
class PropertyOwner {
 public:
  virtual ~PropertyOwner() = default;

 protected:
  friend class PropertyBase;
  virtual void PropertyChanged(const PropertyBase& property) = 0;
};

// The part of a property that does not depend on its type. A property is identified by its
// address, so it can be neither copied nor moved.
class PropertyBase {
 public:
  PropertyBase(const PropertyBase&) = delete;
  PropertyBase& operator=(const PropertyBase&) = delete;

 protected:
  explicit PropertyBase(PropertyOwner& owner) : owner_(owner) {}
  ~PropertyBase() = default;
  void Notify() const { owner_.PropertyChanged(*this); }

 private:
  PropertyOwner& owner_;
};

// A value that assigns and reads like a variable. An assignment of another value notifies the
// owner after the value is stored; an assignment of the same value does nothing.
template <class T>
class Property final : public PropertyBase {
 public:
  Property(PropertyOwner& owner, T initial) : PropertyBase(owner), value_(std::move(initial)) {}

  // NOLINTNEXTLINE(misc-unconventional-assign-operator): a chain of assignments is not wanted.
  void operator=(T value) {
    if (value_ == value) {
      return;
    }
    value_ = std::move(value);
    Notify();
  }

  const T& operator()() const { return value_; }
  // NOLINTNEXTLINE(google-explicit-constructor): a property reads like a variable.
  operator const T&() const { return value_; }
  friend bool operator==(const Property& property, const T& value) {
    return property.value_ == value;
  }

 private:
  T value_;
};

}  // namespace clinorama::forms

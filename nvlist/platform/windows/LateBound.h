#pragma once

#include <initializer_list>

#include <nvlist/files/Recordset.h>
#include <nvlist/platform/ListBox.h>
#include <nvlist/platform/windows/OleValues.h>

namespace norvane {

/// An object of the host whose members are called by name. A member that is missing throws Failure
/// 438; one that fails throws a Failure with its number and text.
class LateBound {
 public:
  explicit LateBound(IDispatch* object) : object_(object) {}
  IDispatch* object() const { return object_.get(); }

  /// Calls a method; `arguments` are in order.
  void call(const wchar_t* member, std::initializer_list<Variant> arguments = {}) const;
  /// Reads a property, or calls a method that has a result.
  Variant read(const wchar_t* member, std::initializer_list<Variant> arguments = {}) const;
  /// Reads the default member. While the result is an object, as the fields of a recordset are, its
  /// default member is read in turn.
  Variant readDefault(std::initializer_list<Variant> arguments) const;

  /// Calls a member with arguments in reverse order, as COM passes them.
  void invoke(DISPID member, WORD flags, VARIANT* arguments, UINT count, VARIANT* result) const;
  DISPID idOf(const wchar_t* member) const;

 private:
  ComPtr<IDispatch> object_;
};

/// Rows for filling a list.
class OleRecordset final : public Recordset {
 public:
  explicit OleRecordset(IDispatch* rows) : rows_(rows) {}
  IDispatch* rows() const { return rows_.object(); }

  std::int32_t RecordCount() override { return rows_.read(L"RecordCount").toInt32(); }
  void MoveFirst() override { rows_.call(L"MoveFirst"); }
  void MoveNext() override { rows_.call(L"MoveNext"); }
  Boolean Eof() override { return rows_.read(L"EOF").toBoolean(); }
  std::optional<Variant> Value(std::int32_t field) override;

 private:
  LateBound rows_;
};

/// A list box of the host.
class OleListBox final : public ListBox {
 public:
  explicit OleListBox(IDispatch* box) : box_(box) {}

  std::int32_t ListCount() override { return box_.read(L"ListCount").toInt32(); }
  std::string List(std::int32_t index) override { return box_.read(L"List", {index}).toText(); }
  void AddItem(const std::string& text) override { box_.call(L"AddItem", {text}); }

 private:
  LateBound box_;
};

}  // namespace norvane

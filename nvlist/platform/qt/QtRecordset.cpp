#include <nvlist/platform/qt/QtRecordset.h>

#include <QSqlError>
#include <QSqlRecord>
#include <QVariant>
#include <limits>

namespace norvane {
namespace {

constexpr std::int32_t unknownCount = -1;

Failure refused(const QString& what) { return Failure::automation(what.trimmed().toStdString()); }
Failure noCurrentRow() { return {3021, "No current row"}; }

template <class Number>
bool fits(const QVariant& value) {
  bool isNumber = false;
  const qlonglong number = value.toLongLong(&isNumber);
  return isNumber && number >= std::numeric_limits<Number>::min() &&
         number <= std::numeric_limits<Number>::max();
}

Variant variantOf(const QVariant& value) {
  switch (value.typeId()) {
    case QMetaType::Bool:
      return value.toBool();
    case QMetaType::Short:
      return static_cast<std::int16_t>(value.toInt());
    case QMetaType::Int:
    case QMetaType::LongLong:
      if (fits<std::int32_t>(value)) return value.toInt();
      break;
    case QMetaType::Double:
      // A Variant would keep only seven digits.
      return QString::number(value.toDouble(), 'G', std::numeric_limits<double>::digits10)
          .toStdString();
    default:
      break;
  }
  if (!value.canConvert<QString>()) throw Failure::typeMismatch();
  return value.toString().toStdString();
}

}  // namespace

void QtRecordset::needRows() const {
  failWhereRefused();
  if (!query_.isActive() || !query_.isSelect()) throw refused("The query has no rows");
}

void QtRecordset::failWhereRefused() const {
  const QSqlError error = query_.lastError();
  if (error.isValid()) throw refused(error.text());
}

std::int32_t QtRecordset::RecordCount() {
  needRows();
  if (!count_) count_ = query_.size() >= 0 ? query_.size() : countRows();
  return *count_;
}

/// Counts the rows. Neither the current row nor isAtEnd_ changes.
std::int32_t QtRecordset::countRows() {
  if (query_.isForwardOnly()) return unknownCount;
  const int current = query_.at();
  const std::int32_t count = query_.last() ? query_.at() + 1 : 0;
  failWhereRefused();
  query_.seek(current);
  return count;
}

void QtRecordset::MoveFirst() {
  needRows();
  if (query_.at() == 0) {
    isAtEnd_ = false;
    return;
  }
  isAtEnd_ = true;
  if (query_.isForwardOnly() && query_.at() != QSql::BeforeFirstRow)
    throw refused("A forward-only query does not go back");
  isAtEnd_ = !query_.first();
  failWhereRefused();
}

void QtRecordset::MoveNext() {
  needCurrentRow();
  isAtEnd_ = !query_.next();
  failWhereRefused();
}

Boolean QtRecordset::Eof() { return isAtEnd(); }

bool QtRecordset::isAtEnd() {
  if (!isAtEnd_) MoveFirst();
  return *isAtEnd_;
}

void QtRecordset::needCurrentRow() {
  needRows();
  if (isAtEnd()) throw noCurrentRow();
}

std::optional<Variant> QtRecordset::Value(std::int32_t field) {
  needCurrentRow();
  if (fields_ == 0) fields_ = query_.record().count();
  if (field < 0 || field >= fields_) throw Failure::subscriptOutOfRange();
  if (query_.isNull(field)) return std::nullopt;
  return variantOf(query_.value(field));
}

}  // namespace norvane

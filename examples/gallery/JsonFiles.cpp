#include "JsonFiles.h"

#include <nvlist/json/JsonLines.h>
#include <nvlist/values/Failure.h>

namespace json = norvane::json;

namespace gallery {
namespace {

json::Progress progressOf(const Continues& continues) {
  return [&continues](std::uint64_t done, std::uint64_t whole) {
    return continues(whole == 0 ? 100 : static_cast<int>(done * 100 / whole));
  };
}

QStringList remarksOf(const json::Result& result) {
  QStringList remarks;
  for (const auto& [line, text] : result.firstProblems)
    remarks << QString("Line %1: %2").arg(line).arg(QString::fromStdString(text));
  for (const std::string& name : result.unknownFields)
    remarks << QString("No field is called %1").arg(QString::fromStdString(name));
  if (result.isStopped) remarks << QString("Stopped after %1 items").arg(result.items);
  return remarks;
}

}  // namespace

bool hasJsonLines() { return true; }

QStringList openJsonLines(norvane::nvList& list, const QString& path, Properties properties,
                          const Continues& continues) {
  try {
    return remarksOf(json::load(
        list, path.toStdString(),
        {.takesProperties = properties == Properties::kept, .progress = progressOf(continues)}));
  } catch (const norvane::Failure& failure) {
    throw QString("Cannot read %1: %2").arg(path, failure.what());
  }
}

QStringList saveJsonLines(const norvane::nvList& list, const QString& path,
                          const Continues& continues) {
  try {
    return remarksOf(json::save(list, path.toStdString(), {.progress = progressOf(continues)}));
  } catch (const norvane::Failure& failure) {
    throw QString("Cannot write %1: %2").arg(path, failure.what());
  }
}

}  // namespace gallery

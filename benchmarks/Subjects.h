#pragma once

#include <QListWidget>
#include <QString>
#include <memory>
#include <string>
#include <vector>

#include <nvlist/platform/headless/HeadlessList.h>
#include <nvlist/platform/qt/NvListWidget.h>

/// "item 123456 of list"
std::string textOf(int number);
/// "key 123456"
std::string keyOf(int number);

/// The texts 0 to count - 1 in the types of each subject, made once for each count.
const std::vector<std::string>& texts(int count);
const std::vector<QString>& qtTexts(int count);
const std::vector<std::string>& keys(int count);

/// The data of an item in plain C++.
struct PlainItem {
  std::string text;
  std::string key;
  std::string tag;
  int foreColor = 0;
  int backColor = 0;
  int foreColorSelected = 0;
  int backColorSelected = 0;
  int foreColorDisabled = 0;
  int backColorDisabled = 0;
  void* icon = nullptr;
  void* iconSelected = nullptr;
  int alignment = 0;
  bool isChecked = false;
  bool isSelected = false;
  bool isEnabled = true;
  bool allowsEdit = false;
  bool isBold = false;
  bool isItalic = false;
  bool isUnderlined = false;
};

using PlainList = std::vector<std::shared_ptr<PlainItem>>;

/// Windows of 400 by 300 pixels without frame and scroll bars. A hidden one paints nothing.
std::unique_ptr<norvane::NvListWidget> makeNvList(bool isShown);
std::unique_ptr<QListWidget> makeListWidget(bool isShown);
std::unique_ptr<norvane::HeadlessList> makeHeadlessList();

void fill(norvane::nvList& list, int count);
void fill(QListWidget& list, int count);
/// Every item also has a key, a tag, a colour and a check mark.
void fillAllFields(norvane::nvList& list, int count);
void fillAllFields(QListWidget& list, int count);

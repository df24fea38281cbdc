#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>

namespace norvane {

/// A temporary folder on the disk, whose name is not ASCII. Paths and names are UTF-8 on every
/// system.
class Folder {
 public:
  Folder() { std::filesystem::create_directories(path_); }
  Folder(const Folder&) = delete;
  Folder& operator=(const Folder&) = delete;
  ~Folder() { std::filesystem::remove_all(path_); }

  std::filesystem::path operator/(const std::string& name) const {
    return path_ / std::u8string(name.begin(), name.end());
  }
  std::string at(const std::string& name) const {
    const std::u8string path = (*this / name).u8string();
    return {path.begin(), path.end()};
  }
  void put(const std::string& name, const std::string& bytes) const {
    std::ofstream(*this / name, std::ios::binary) << bytes;
  }
  /// The bytes of a file, or "no file".
  std::string bytes(const std::string& name) const {
    std::ifstream file(*this / name, std::ios::binary);
    if (!file) return "no file";
    return {std::istreambuf_iterator<char>(file), {}};
  }

 private:
  const std::filesystem::path path_ =
      std::filesystem::temp_directory_path() /
      std::filesystem::path(u8"nvlist Zoë").concat(std::to_string(std::random_device()()));
};

}  // namespace norvane

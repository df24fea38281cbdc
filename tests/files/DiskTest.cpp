#ifndef _WIN32
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>
#include <csignal>
#endif

#include "FileTest.h"
#include "Folder.h"

#include <nvlist/files/fileExists.h>

namespace norvane {
namespace {

namespace fs = std::filesystem;

/// Real files in a temporary folder.
class Disk : public FileTest {
 protected:
  Disk() { fs::create_directory(folder / "folder"); }

  std::string at(const std::string& name) { return folder.at(name); }
  std::string contents(const std::string& name) { return folder.bytes(name); }
  /// Creates a file whose first byte changes when a list is saved to it.
  std::string oldFile(const std::string& name = "old") {
    folder.put(name, "old contents");
    return at(name);
  }
  /// Saves a list of one item. Returns false if that raised ErrorListSave.
  bool save(const std::string& path) {
    list.ItemsClear();
    list.ItemsAdd("a");
    list.ListSave(path);
    return heardNow().find("save!") == std::string::npos;
  }
  std::string heardNow() { return std::exchange(heard, ""); }
  const std::string saved = header(0, false) + text("a");

  Files files;
  Folder folder;
};

TEST_F(Disk, FindsFilesByWildcardsAndHoldsTheList) {
  for (const char* name : {"one.txt", "two.list", "bare", "#[1]", "\u00fc.nvl"})
    folder.put(name, name);
  for (const char* there :
       {"one.txt", "*.txt", "?ne.txt", "*.*", "bare.*", "fol*", "#[?]", "?.nvl"})
    EXPECT_TRUE(FileExists(at(there))) << there;
  for (const char* missing : {"one", "?one.txt", "bare.?", "folder/", "none/*", "[#][1]*"})
    EXPECT_FALSE(FileExists(at(missing))) << missing;
  EXPECT_FALSE(FileExists(""));
  // Not the file that the system would find by cutting the name at the zero.
  for (const char* behind : {"", "x", "*"})
    EXPECT_FALSE(FileExists(at("bare") + '\0' + behind)) << behind;
  EXPECT_EQ(reports(), "");

  add({"a", "\u00e4"});
  list.ListSave(at("\u00fc.nvl"), true);
  list.ItemsClear();
  list.ListInput(at("\u00fc.nvl"), true);
  EXPECT_EQ(texts() + heardNow(), "a \u00e40 1 ");
}

TEST_F(Disk, RefusesWhatIsNoFile) {
  for (const bool isBeside : {false, true}) {
    files.savesBeside(isBeside);
    for (const std::string& path :
         {at("folder"), at("none/file"), std::string(), oldFile() + '\0' + "s"})
      EXPECT_FALSE(save(path)) << path;
    EXPECT_EQ(contents("old"), "old contents");
  }
  for (const std::string& path : {at("folder"), at("fold*")}) list.ListInput(path);
  EXPECT_EQ(heardNow(), "input! input! ");
}

#ifndef _WIN32

TEST_F(Disk, KeepsWhatAFileIs) {
  // Only root could replace the system's own device by mistake, and root can make another one.
  const std::string ownFull = at("full");
  const bool isOwn = mknod(ownFull.c_str(), S_IFCHR | 0666, dev_t{1 << 8 | 7}) == 0;
  for (const bool isBeside : {false, true}) {
    files.savesBeside(isBeside);
    const fs::perms mode = fs::perms::owner_read | fs::perms::owner_write;
    fs::permissions(oldFile(), mode);
    EXPECT_TRUE(save(at("old")));
    EXPECT_EQ(fs::status(at("old")).permissions(), mode);
    EXPECT_EQ(contents("old"), saved);

    fs::permissions(oldFile("read only"), fs::perms::owner_read);
    EXPECT_FALSE(save(at("read only")));
    EXPECT_EQ(contents("read only"), "old contents");

    // Symbolic links to a file, a missing file and a device, and a hard link.
    fs::create_symlink(fs::path(oldFile("target")).filename(), at("link"));
    fs::create_symlink("new target", at("dangling"));
    fs::create_symlink(isOwn ? ownFull : "/dev/full", at("device"));
    fs::create_hard_link(oldFile("first name"), at("second name"));
    for (const char* link : {"link", "dangling"}) {
      EXPECT_TRUE(save(at(link))) << link;
      EXPECT_TRUE(fs::is_symlink(at(link))) << link;
    }
    EXPECT_FALSE(save(at("device")));
    EXPECT_EQ(contents("target") + contents("new target"), saved + saved);
    EXPECT_TRUE(save(at("first name")));
    EXPECT_EQ(contents("second name"), isBeside ? "old contents" : saved);

    // A pipe without a reader would block, and a device would be read endlessly.
    ASSERT_EQ(mkfifo(at("pipe").c_str(), 0600), 0);
    EXPECT_FALSE(save(at("pipe")));
    for (const char* endless : {"pipe", "device"}) list.ListInput(at(endless));
    EXPECT_EQ(heardNow(), "input! input! ");
    for (const char* name : {"link", "dangling", "device", "second name", "pipe", "read only"})
      fs::remove(at(name));
  }
}

TEST_F(Disk, ASaveIsNotDisturbedAndLeavesNothingBehind) {
  /// Saves in a separate process, which sees the same files, and returns how that ended.
  const auto saveInAChild = [&] {
    int status = -1;
    const pid_t child = fork();
    if (child == 0) _exit(save(at("old")) ? 1 : 2);
    EXPECT_EQ(waitpid(child, &status, 0), child);
    return status;
  };
  for (const bool isBeside : {false, true}) {
    files.savesBeside(isBeside);
    oldFile();
    onProgress = [](Variant&) { raise(SIGKILL); };
    EXPECT_TRUE(WIFSIGNALED(saveInAChild()));
    EXPECT_EQ(contents("old"), isBeside ? "old contents" : "");
    onProgress = [](Variant&) { throw 1; };
    EXPECT_FALSE(save(at("old")));
    EXPECT_EQ(contents("old") == "old contents", isBeside);
    EXPECT_FALSE(fs::exists(at("old.nvlist-new")));
    onProgress = [&, isParent = true](Variant&) mutable {
      if (!std::exchange(isParent, false)) return;
      EXPECT_EQ(WEXITSTATUS(saveInAChild()), 2) << "not locked";
    };
    EXPECT_TRUE(save(at("old")));
    onProgress = nullptr;
    EXPECT_EQ(contents("old"), saved);
    EXPECT_FALSE(fs::exists(at("old.nvlist-new")));
    EXPECT_TRUE(save(at("old")));
  }
}

#endif

}  // namespace
}  // namespace norvane

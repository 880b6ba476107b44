#include "ProgramFolder.h"

#include "Fakes.h"
#include "FileSystem.h"
#include "OrdinaryUser.h"
#include "Raises.h"
#include "ShippedFiles.h"
#include "TestFolder.h"

#include <gtest/gtest.h>

#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tunedex {
namespace {

// Puts the user's data folder and the program into a test folder.
class ProgramFolder : public testing::Test {
  protected:
    ProgramFolder() { setenv("XDG_DATA_HOME", (folder_ / "home").c_str(), 1); }

    std::string Find() { return FindProgramFolder(registry_, bin_); }
    void Install() const { folder_.Make("prefix/share/tunedex"); }
    void ExpectShippedFiles() const {
        for (const ShippedFile& shipped : ShippedFiles()) {
            EXPECT_EQ(test::ReadBytes(data_ + std::string(shipped.path)), shipped.bytes);
        }
    }

    const test::TestFolder folder_;
    const std::string bin_ = folder_.Make("prefix/bin") + "/";
    const std::string data_ = folder_ / "home/tunedex/";
    test::FakeRegistry registry_{};
};

TEST_F(ProgramFolder, IsTheRegisteredFolder) {
    Install();
    registry_.values["InstallationPath"] = "/opt/tunedex";
    EXPECT_EQ(Find(), "/opt/tunedex/");
    registry_.values["InstallationPath"] = "/opt/tunedex/";
    EXPECT_EQ(Find(), "/opt/tunedex/");
    EXPECT_FALSE(folder_.Exists("home"));
}

TEST_F(ProgramFolder, IsTheRunningProgramsFolderIfWritable) {
    EXPECT_EQ(Find(), bin_);
    EXPECT_EQ(registry_.Read("TipsOnStartup"), "") << "set only for a user's data folder";
    EXPECT_FALSE(folder_.Exists("home"));
}

TEST_F(ProgramFolder, IsTheUsersDataFolderForAnInstalledProgramEvenIfWritable) {
    Install();
    ASSERT_TRUE(FolderIsWritable(bin_));
    EXPECT_EQ(Find(), data_);
    ExpectShippedFiles();
    EXPECT_EQ(registry_.Read("TipsOnStartup"), "1") << "new users see the tips";
    EXPECT_TRUE(std::filesystem::is_empty(bin_));
}

TEST_F(ProgramFolder, IsTheUsersDataFolderIfTheProgramsFolderIsNotWritable) {
    if (geteuid() != 0) {
        GTEST_SKIP()
            << "only root can switch to a user without write permission for the test program's folder";
    }
    test::AsOrdinaryUser(folder_, [&] {
        ASSERT_EQ(chmod(bin_.c_str(), 0555), 0);
        EXPECT_EQ(Find(), data_);
        ExpectShippedFiles();
    });
}

TEST_F(ProgramFolder, IsFilledOnlyOnce) {
    Install();
    Find();
    registry_.values["TipsOnStartup"] = "";
    folder_.Write("home/tunedex/tips.lst", "my tips");
    ASSERT_EQ(unlink((data_ + "html_entities.lst").c_str()), 0);
    std::filesystem::remove_all(data_ + "Themes");
    EXPECT_EQ(Find(), data_);
    EXPECT_EQ(registry_.Read("TipsOnStartup"), "");
    EXPECT_EQ(test::ReadBytes(data_ + "tips.lst"), "my tips");
    EXPECT_FALSE(folder_.Exists("home/tunedex/html_entities.lst"));
    EXPECT_FALSE(folder_.Exists("home/tunedex/Themes"));
}

TEST_F(ProgramFolder, KeepsTheUsersChoiceOfTips) {
    Install();
    registry_.values["TipsOnStartup"] = "0";
    Find();
    EXPECT_EQ(registry_.Read("TipsOnStartup"), "0");
}

// As under the prefix ~/.local, where that folder already contains the help.
TEST_F(ProgramFolder, IsFilledEvenIfItIsTheInstallationsDataFolder) {
    setenv("XDG_DATA_HOME", (folder_ / "prefix/share").c_str(), 1);
    folder_.Write("prefix/share/tunedex/Help.html", "help");
    EXPECT_EQ(Find(), folder_ / "prefix/share/tunedex/");
    EXPECT_TRUE(folder_.Exists("prefix/share/tunedex/html_entities.lst"));
    EXPECT_EQ(registry_.Read("TipsOnStartup"), "1");
}

TEST_F(ProgramFolder, IsNotFilledIfTheUserCreatedIt) {
    Install();
    folder_.Write("home/tunedex/Tunedex.cfg", "mine");
    EXPECT_EQ(Find(), data_);
    EXPECT_FALSE(folder_.Exists("home/tunedex/html_entities.lst"));
    EXPECT_FALSE(folder_.Exists("home/tunedex/Themes"));
    EXPECT_EQ(registry_.Read("TipsOnStartup"), "");
}

TEST_F(ProgramFolder, IsFilledOnlyOnceIfItIsTheInstallationsDataFolder) {
    setenv("XDG_DATA_HOME", (folder_ / "prefix/share").c_str(), 1);
    folder_.Write("prefix/share/tunedex/Help.html", "help");
    folder_.Write("prefix/share/tunedex/tips.lst", "mine");
    Find();
    EXPECT_EQ(test::ReadBytes(folder_ / "prefix/share/tunedex/tips.lst"), "mine");
    ASSERT_EQ(unlink((folder_ / "prefix/share/tunedex/html_entities.lst").c_str()), 0);
    Find();
    EXPECT_FALSE(folder_.Exists("prefix/share/tunedex/html_entities.lst"));
}

TEST_F(ProgramFolder, IsFilledCompletelyAfterAFailedFirstStart) {
    Install();
    test::InChild([&] {
        // All but the smallest files exceed the limit, as on a full disk.
        const rlimit few{1000, RLIM_INFINITY};
        ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &few), 0);
        std::signal(SIGXFSZ, SIG_IGN);
        EXPECT_NE(test::RaisedBy([&] { Find(); }), 0);
        EXPECT_NE(test::RaisedBy([&] { Find(); }), 0);
    });
    EXPECT_FALSE(folder_.Exists("home/tunedex/tips.lst"));
    EXPECT_EQ(Find(), data_);
    ExpectShippedFiles();
}

TEST_F(ProgramFolder, IsInTheUsersHomeUnlessTheVariableIsAnAbsolutePath) {
    Install();
    setenv("HOME", (folder_ / "home").c_str(), 1);
    for (const char* value : {"", "relative/data"}) {
        setenv("XDG_DATA_HOME", value, 1);
        EXPECT_EQ(Find(), folder_ / "home/.local/share/tunedex/") << value;
    }
    unsetenv("XDG_DATA_HOME");
    EXPECT_EQ(Find(), folder_ / "home/.local/share/tunedex/");
    EXPECT_TRUE(folder_.Exists("home/.local/share/tunedex/tips.lst"));
}

TEST_F(ProgramFolder, RaisesTheErrorOfAFolderThatCannotBeCreated) {
    Install();
    folder_.Make("home");
    test::AsOrdinaryUser(folder_, [&] {
        ASSERT_EQ(chmod((folder_ / "home").c_str(), 0555), 0);
        EXPECT_EQ(test::RaisedBy([&] { Find(); }), 75);
    });
}

TEST(FillProgramFolder, KeepsExistingFiles) {
    const test::TestFolder folder;
    folder.Write("tips.lst", "mine");
    folder.Make("html_entities.lst"); // a folder of that name is kept too
    FillProgramFolder(folder.Path());
    EXPECT_EQ(test::ReadBytes(folder / "tips.lst"), "mine");
    EXPECT_TRUE(FolderExists(folder / "html_entities.lst"));
    for (const ShippedFile& shipped : ShippedFiles()) {
        EXPECT_TRUE(folder.Exists(shipped.path)) << shipped.path;
    }
}

TEST(ShippedFiles, EmbedTheSourceFilesByteForByte) {
    bool tips = false;
    bool entities = false;
    for (const ShippedFile& shipped : ShippedFiles()) {
        EXPECT_EQ(shipped.bytes,
                  test::ReadBytes(std::string(TUNEDEX_SOURCE_DIR) + "/data/" + std::string(shipped.path)));
        tips = tips || shipped.path == "tips.lst";
        entities = entities || shipped.path == "html_entities.lst";
    }
    EXPECT_TRUE(tips && entities);
}

TEST(HelpFile, IsTheRegisteredOneIfItHasTheRightName) {
    const test::TestFolder folder;
    test::FakeRegistry registry;
    const std::string registered = folder.Write("doc/Help.html", "x");
    registry.values["HelpFilePath"] = registered;
    EXPECT_EQ(FindHelpFile(registry, folder / "program/"), registered);
    // Not with another name, and not a folder.
    registry.values["HelpFilePath"] = folder.Write("doc/Other.html", "x");
    EXPECT_NE(FindHelpFile(registry, folder / "program/"), folder / "doc/Other.html");
    registry.values["HelpFilePath"] = folder.Make("more/Help.html");
    EXPECT_NE(FindHelpFile(registry, folder / "program/"), folder / "more/Help.html");
}

TEST(HelpFile, CountsAsMissingIfItCannotBeExamined) {
    const test::TestFolder folder;
    test::FakeRegistry registry;
    const std::string help = folder.Write("program/Help.html", "x");
    const std::string closed = folder.Write("closed/Help.html", "x");
    test::AsOrdinaryUser(folder, [&] {
        ASSERT_EQ(chmod((folder / "closed").c_str(), 0), 0);
        for (const std::string& path : {closed, folder / (std::string(5000, 'x') + "/Help.html"),
                                        folder / std::string("a\0/Help.html", 12)}) {
            registry.values["HelpFilePath"] = path;
            EXPECT_NE(FindHelpFile(registry, folder / "program/"), path);
        }
        registry.values["HelpFilePath"] = "";
        EXPECT_NE(FindHelpFile(registry, folder / "closed/"), closed);
        ASSERT_EQ(chmod((folder / "closed").c_str(), 0700), 0);
    });
}

TEST(HelpFile, IsInTheProgramFolderIfNoneIsRegistered) {
    const test::TestFolder folder;
    const std::string help = folder.Write("program/Help.html", "x");
    EXPECT_EQ(FindHelpFile(test::FakeRegistry(), folder / "program/"), help);
}

TEST(HelpFile, IsEmptyIfNoneExists) {
    const test::TestFolder folder;
    if (FileExists(RunningProgramFolder() + "Help.html")) {
        GTEST_SKIP() << "a help file exists next to the test program";
    }
    test::FakeRegistry registry;
    EXPECT_EQ(FindHelpFile(registry, folder.Path()), "");
    // With a wrong registered path, only the running program's folder is searched.
    folder.Write("Help.html", "x");
    registry.values["HelpFilePath"] = "/none/Help.html";
    EXPECT_EQ(FindHelpFile(registry, folder.Path()), "");
}

} // namespace
} // namespace tunedex

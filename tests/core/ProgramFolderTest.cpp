#include "ProgramFolder.h"

#include "Fakes.h"
#include "FileSystem.h"
#include "OrdinaryUser.h"
#include "Raises.h"
#include "ShippedFiles.h"
#include "TestFolder.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <string>
#include <sys/stat.h>
#include <unistd.h>

namespace tunedex {
namespace {

TEST(ProgramFolder, IsTheOneThatTheRegistryNames) {
    test::FakeRegistry registry;
    registry.values["InstallationPath"] = "/opt/tunedex";
    EXPECT_EQ(FindProgramFolder(registry), "/opt/tunedex/");
    registry.values["InstallationPath"] = "/opt/tunedex/";
    EXPECT_EQ(FindProgramFolder(registry), "/opt/tunedex/");
}

TEST(ProgramFolder, IsTheRunningProgramsWhenThatCanBeWritten) {
    if (!FolderIsWritable(RunningProgramFolder())) {
        GTEST_SKIP() << "the test program's own folder cannot be written";
    }
    test::FakeRegistry registry;
    EXPECT_EQ(FindProgramFolder(registry), RunningProgramFolder());
    EXPECT_EQ(registry.Read("TipsOnStartup"), "") << "that is for a user's own data folder";
}

// Becomes a user who may not write where the test program is.
class DataFolder : public testing::Test {
  protected:
    void SetUp() override {
        if (geteuid() != 0) {
            GTEST_SKIP() << "only root can become a user who may not write the test program's folder";
        }
    }

    const test::TestFolder folder_;
    test::FakeRegistry registry_{};
};

TEST_F(DataFolder, StandsInForAProgramsFolderThatCannotBeWrittenAndIsFilledOnFirstUse) {
    test::AsOrdinaryUser(folder_, [&] {
        ASSERT_FALSE(FolderIsWritable(RunningProgramFolder()));
        setenv("XDG_DATA_HOME", (folder_ / "data").c_str(), 1);
        EXPECT_EQ(FindProgramFolder(registry_), folder_ / "data/tunedex/");
        for (const ShippedFile& shipped : ShippedFiles()) {
            EXPECT_EQ(test::ReadBytes(folder_ / "data/tunedex/" + std::string(shipped.path)), shipped.bytes);
        }
        EXPECT_EQ(registry_.Read("TipsOnStartup"), "1") << "a new user is shown the tips";
        // Found again, it is left alone but for what is missing, and so is the user's choice of tips.
        registry_.values["TipsOnStartup"] = "";
        folder_.Write("data/tunedex/tips.lst", "my tips");
        ASSERT_EQ(unlink((folder_ / "data/tunedex/html_entities.lst").c_str()), 0);
        EXPECT_EQ(FindProgramFolder(registry_), folder_ / "data/tunedex/");
        EXPECT_EQ(registry_.Read("TipsOnStartup"), "");
        EXPECT_EQ(test::ReadBytes(folder_ / "data/tunedex/tips.lst"), "my tips");
        EXPECT_TRUE(folder_.Exists("data/tunedex/html_entities.lst"));
    });
}

TEST_F(DataFolder, IsInTheUsersHomeWithoutAVariableThatNamesAnAbsolutePath) {
    test::AsOrdinaryUser(folder_, [&] {
        setenv("HOME", (folder_ / "home").c_str(), 1);
        for (const char* value : {"", "relative/data"}) {
            setenv("XDG_DATA_HOME", value, 1);
            EXPECT_EQ(FindProgramFolder(registry_), folder_ / "home/.local/share/tunedex/") << value;
        }
        unsetenv("XDG_DATA_HOME");
        EXPECT_EQ(FindProgramFolder(registry_), folder_ / "home/.local/share/tunedex/");
        EXPECT_TRUE(folder_.Exists("home/.local/share/tunedex/tips.lst"));
    });
}

TEST_F(DataFolder, ThatCannotBeMadeRaisesItsError) {
    folder_.Make("closed");
    test::AsOrdinaryUser(folder_, [&] {
        ASSERT_EQ(chmod((folder_ / "closed").c_str(), 0555), 0);
        setenv("XDG_DATA_HOME", (folder_ / "closed").c_str(), 1);
        EXPECT_EQ(test::RaisedBy([&] { FindProgramFolder(registry_); }), 75);
    });
}

TEST(FillProgramFolder, NeverReplacesWhatTheUserHas) {
    const test::TestFolder folder;
    folder.Write("tips.lst", "mine");
    folder.Make("html_entities.lst"); // not even a folder of that name
    FillProgramFolder(folder.Path());
    EXPECT_EQ(test::ReadBytes(folder / "tips.lst"), "mine");
    EXPECT_TRUE(FolderExists(folder / "html_entities.lst"));
    for (const ShippedFile& shipped : ShippedFiles()) {
        EXPECT_TRUE(folder.Exists(shipped.path)) << shipped.path;
    }
}

TEST(ShippedFiles, HoldTheFilesOfTheSourceByteForByte) {
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

TEST(HelpFile, IsTheRegisteredOneIfThatIsAHelpFile) {
    const test::TestFolder folder;
    test::FakeRegistry registry;
    const std::string registered = folder.Write("doc/Help.html", "x");
    registry.values["HelpFilePath"] = registered;
    EXPECT_EQ(FindHelpFile(registry, folder / "program/"), registered);
    // Of another name, or a folder, it is not.
    registry.values["HelpFilePath"] = folder.Write("doc/Other.html", "x");
    EXPECT_NE(FindHelpFile(registry, folder / "program/"), folder / "doc/Other.html");
    registry.values["HelpFilePath"] = folder.Make("more/Help.html");
    EXPECT_NE(FindHelpFile(registry, folder / "program/"), folder / "more/Help.html");
}

TEST(HelpFile, IsTheOneInTheProgramFolderWhenNoneIsRegistered) {
    const test::TestFolder folder;
    const std::string help = folder.Write("program/Help.html", "x");
    EXPECT_EQ(FindHelpFile(test::FakeRegistry(), folder / "program/"), help);
}

TEST(HelpFile, IsNoneWhenThereIsNone) {
    const test::TestFolder folder;
    if (FileExists(RunningProgramFolder() + "Help.html")) {
        GTEST_SKIP() << "there is a help file beside the test program";
    }
    test::FakeRegistry registry;
    EXPECT_EQ(FindHelpFile(registry, folder.Path()), "");
    // A registered path that is wrong sends the search to the running program's folder, not to this one.
    folder.Write("Help.html", "x");
    registry.values["HelpFilePath"] = "/none/Help.html";
    EXPECT_EQ(FindHelpFile(registry, folder.Path()), "");
}

} // namespace
} // namespace tunedex

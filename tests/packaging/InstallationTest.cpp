// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <regex>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "packaging/StagedTest.h"
#include "platform/Installation.h"
#include "support/Child.h"

namespace {

class InstallationTest : public StagedTest {
  protected:
    static void SetUpTestSuite() { installBelowTheStage(); }
    /// A path below the prefix as it is in the stage.
    static std::string installed(const std::string& path) {
        return stage().path() + KEYRILL_PREFIX + "/" + path;
    }
    static bool isInstalled(const std::string& path) { return std::filesystem::exists(installed(path)); }
};

const std::string id = "example.orlen.Keyrill";

TEST_F(InstallationTest, holdsThePrograms) {
    EXPECT_TRUE(isInstalled("bin/keyrill"));
    EXPECT_TRUE(isInstalled("bin/keyrill-script"));
    EXPECT_TRUE(isInstalled("libexec/keyrill/keyrill-guard"));
    EXPECT_TRUE(isInstalled("libexec/keyrill/keyrill-portal"));
    EXPECT_FALSE(isInstalled("bin/keyrill-demonstration"));
}

TEST_F(InstallationTest, theMenuEntryIsValidAndComplete) {
    const std::string file = installed("share/applications/" + id + ".desktop");
    EXPECT_EQ(outputOf({"desktop-file-validate", "--warn-kde", file}), "");
    const std::string entry = contentOf(file);
    EXPECT_NE(entry.find("\nExec=keyrill %f\n"), std::string::npos);
    EXPECT_NE(entry.find("\nMimeType=application/x-keyrill-macro;\n"), std::string::npos);
    EXPECT_NE(entry.find("\nIcon=" + id + "\n"), std::string::npos);
}

TEST_F(InstallationTest, theMenuEntryOffersTheActionsOfTheProgram) {
    const std::string entry = contentOf(installed("share/applications/" + id + ".desktop"));
    const std::string help = outputOf({installed("bin/keyrill"), "--help"}, {{"LC_ALL", "C.UTF-8"}});
    std::smatch names;
    ASSERT_TRUE(std::regex_search(help, names, std::regex("ACTION is one of these: (.*)\\.\n"))) << help;
    const std::string list = names[1];
    const std::string actions = std::regex_replace(list, std::regex(", "), ";") + ";";
    EXPECT_NE(entry.find("\nActions=" + actions + "\n"), std::string::npos) << actions;
    const std::regex name("[a-z-]+");
    for (std::sregex_iterator at(list.begin(), list.end(), name), end; at != end; ++at) {
        const std::regex action("\n\\[Desktop Action " + at->str() +
                                "\\]\nName=.+\n(Name\\[[a-z]+\\]=.+\n)*Exec=keyrill --action=" + at->str() +
                                "\n");
        EXPECT_TRUE(std::regex_search(entry, action)) << at->str();
    }
}

TEST_F(InstallationTest, theSoftwareCentresPageIsValidAndOfThisVersion) {
    const std::string file = installed("share/metainfo/" + id + ".metainfo.xml");
    outputOf({"appstreamcli", "validate", "--no-net", file});
    EXPECT_NE(contentOf(file).find("<release version=\"" KEYRILL_VERSION "\""), std::string::npos);
}

TEST_F(InstallationTest, eachFileInXmlIsWellFormed) {
    const std::set<std::string> kinds = {".html", ".lang", ".svg", ".xml"};
    std::vector<std::string> command = {"xmllint", "--noout", "--nonet"};
    for (const auto& file : std::filesystem::recursive_directory_iterator(installed("share"))) {
        if (kinds.contains(file.path().extension())) command.push_back(file.path());
    }
    EXPECT_GT(command.size(), 30U);
    EXPECT_EQ(outputOf(command), "");
}

TEST_F(InstallationTest, macroFilesAreKnownByTheirNameAndAreText) {
    const TemporaryFolder home;
    const std::map<std::string, std::string> environment = {
        {"HOME", home.path()},
        {"XDG_DATA_HOME", home.path()},
        {"XDG_DATA_DIRS", installed("share") + ":/usr/share"}};
    outputOf({"update-mime-database", installed("share/mime")}, environment);
    for (const char* name : {"typed.keyrill", "TYPED.KEYRILL"}) {
        std::ofstream(home.file(name)) << "tell application \"System Events\" to key code 0\n";
        const std::string facts =
            outputOf({"gio", "info", "-a", "standard::content-type", home.file(name)}, environment);
        EXPECT_NE(facts.find("standard::content-type: application/x-keyrill-macro\n"), std::string::npos)
            << facts;
    }
    EXPECT_NE(contentOf(installed("share/mime/subclasses")).find("application/x-keyrill-macro text/plain\n"),
              std::string::npos);
}

TEST_F(InstallationTest, theManualPagesAreWellFormed) {
    for (const auto& page : std::filesystem::directory_iterator(installed("share/man/man1"))) {
        EXPECT_EQ(outputOf({"mandoc", "-T", "lint", "-W", "warning", page.path()}), "");
    }
    EXPECT_TRUE(isInstalled("share/man/man1/keyrill.1"));
    EXPECT_EQ(outputOf({"mandoc", "-T", "lint", "-W", "warning", KEYRILL_ACCESS_MANUAL}), "");
}

TEST_F(InstallationTest, theProgramFindsItsParts) {
    const Installation installation(installed("bin"));
    for (const std::string& file : {installation.manual(), installation.companions() + "/keyrill-guard",
                                    installation.pictures() + "/splash.svg",
                                    installation.icons() + "/hicolor/48x48/apps/" + id + ".png"})
        EXPECT_TRUE(std::filesystem::is_regular_file(file)) << file;
}

/// Where each link and picture of a page leads to, without the place there.
std::set<std::string> targetsOf(const std::filesystem::path& page) {
    const std::string content = contentOf(page);
    const std::regex link("(?:href|src|srcset)=\"([^\"#]+)");
    std::set<std::string> targets;
    for (std::sregex_iterator at(content.begin(), content.end(), link), end; at != end; ++at) {
        targets.insert((*at)[1]);
    }
    return targets;
}

/// Places within pages: tests/manual.
TEST_F(InstallationTest, theLinksOfAllPagesOfTheManualLeadSomewhere) {
    const std::filesystem::path folder =
        std::filesystem::path(Installation(installed("bin")).manual()).parent_path();
    int pages = 0;
    for (const auto& file : std::filesystem::recursive_directory_iterator(folder)) {
        if (file.path().extension() != ".html") continue;
        ++pages;
        const std::filesystem::path place = file.path().parent_path();
        const std::set<std::string> targets = targetsOf(file.path());
        EXPECT_TRUE(targets.contains(place == folder ? "style.css" : "../style.css")) << file.path();
        for (const std::string& target : targets) {
            EXPECT_TRUE(std::filesystem::exists(place / target)) << file.path() << ": " << target;
        }
    }
    EXPECT_GE(pages, 15);
    EXPECT_TRUE(std::filesystem::exists(folder / "search-index.js"));
    EXPECT_FALSE(std::filesystem::exists(folder / "README.md"));
}

TEST_F(InstallationTest, theManualIsThereInTheLanguagesOfTheProgram) {
    const Installation installation(installed("bin"));
    const std::filesystem::path folder = std::filesystem::path(installation.manual()).parent_path();
    for (const std::string language : {"ar", "de", "es", "fr", "ja", "ru"}) {
        EXPECT_EQ(installation.manual(language), (folder / language / "index.html").string());
        EXPECT_TRUE(std::filesystem::exists(folder / language / "search-index.js")) << language;
    }
    EXPECT_EQ(installation.manual("eo"), installation.manual());
}

/// As a package does.
void installForAll(const TemporaryFolder& system) {
    outputOf({KEYRILL_CMAKE, "--install", KEYRILL_BUILD_FOLDER, "--prefix", "/usr"},
             {{"DESTDIR", system.path()}});
}

/// The package's build refuses files that none of its lists has.
TEST_F(InstallationTest, eachFileHasItsPlaceInThePackage) {
    std::istringstream lines(contentOf(KEYRILL_PACKAGE_LIST));
    std::vector<std::string> places;
    for (std::string line; std::getline(lines, line);) places.push_back(line.substr(0, line.find(' ')));
    ASSERT_GT(places.size(), 10U);
    const auto isAt = [](const std::string& file, const std::string& place) {
        return file == place || file.starts_with(place + "/");
    };
    const TemporaryFolder system;
    installForAll(system);
    const std::string root = system.path() + "/";
    for (const auto& entry : std::filesystem::recursive_directory_iterator(root)) {
        if (entry.is_directory()) continue;
        const std::string file = entry.path().string().substr(root.size());
        EXPECT_TRUE(std::any_of(places.begin(), places.end(), [&](const std::string& place) {
            return isAt(file, place);
        })) << file;
    }
}

TEST_F(InstallationTest, thePresetsLieInTheTreeButForUsrInEtc) {
    EXPECT_TRUE(isInstalled("etc/xdg/keyrill/keyrill.conf"));
    const TemporaryFolder system;
    installForAll(system);
    EXPECT_TRUE(std::filesystem::exists(system.path() + "/etc/xdg/keyrill/keyrill.conf"));
    EXPECT_FALSE(std::filesystem::exists(system.path() + "/usr/etc"));
}

}  // namespace

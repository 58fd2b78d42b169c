// SPDX-License-Identifier: MIT
//
// Each program that is installed, as the linker and the disassembler see it.
#include <gtest/gtest.h>

#include <filesystem>
#include <regex>
#include <set>
#include <sstream>

#include "packaging/StagedTest.h"
#include "support/Child.h"

namespace {

namespace fs = std::filesystem;

/// The installed programs, by their paths below the prefix.
class HardeningTest : public StagedTest {
  protected:
    static void SetUpTestSuite() {
        installBelowTheStage();
        // As root's service is installed, which a user asks for separately.
        outputOf({KEYRILL_ACCESS_TOOL, "install", KEYRILL_BUILD_FOLDER}, {{"DESTDIR", stage().path()}});
        for (const auto& entry : fs::recursive_directory_iterator(stage().path())) {
            if (entry.is_regular_file() && contentOf(entry.path())
                                               .starts_with("\x7F"
                                                            "ELF"))
                programs().insert(entry.path());
        }
    }
    static std::string read(const char* option, const std::string& program) {
        return outputOf({"readelf", "--wide", option, program});
    }
    static std::string lineWith(const std::string& text, const std::string& word) {
        std::istringstream lines(text);
        for (std::string line; std::getline(lines, line);) {
            if (line.find(word) != std::string::npos) return line;
        }
        return "";
    }
    /// The functions of the C library that look before they write.
    static std::set<std::string> checksIn(const std::string& program) {
        const std::string symbols = read("--dyn-syms", program);
        const std::regex check(" (__[a-z_]+_chk(_fail)?)@");
        std::set<std::string> checks;
        for (std::sregex_iterator at(symbols.begin(), symbols.end(), check), end; at != end; ++at)
            checks.insert((*at)[1]);
        return checks;
    }

    static std::set<std::string>& programs() {
        static std::set<std::string> programs;
        return programs;
    }
};

TEST_F(HardeningTest, looksAtAllPrograms) {
    std::set<std::string> names;
    for (const fs::path path : programs()) names.insert(path.filename());
    EXPECT_EQ(names, (std::set<std::string>{"keyrill", "keyrill-access", "keyrill-guard", "keyrill-portal",
                                            "keyrill-script"}));
}

TEST_F(HardeningTest, theyLieAtNoFixedAddress) {
    for (const std::string& program : programs()) {
        EXPECT_NE(lineWith(read("--file-header", program), "Type:").find("DYN"), std::string::npos)
            << program;
    }
}

TEST_F(HardeningTest, allSymbolsAreBoundAndWriteProtectedBeforeTheyStart) {
    for (const std::string& program : programs()) {
        EXPECT_NE(read("--program-headers", program).find("GNU_RELRO"), std::string::npos) << program;
        EXPECT_NE(lineWith(read("--dynamic", program), "(FLAGS)").find("BIND_NOW"), std::string::npos)
            << program;
    }
}

TEST_F(HardeningTest, noMemoryIsWritableAndExecutable) {
    for (const std::string& program : programs()) {
        std::istringstream segments(read("--program-headers", program));
        for (std::string line; std::getline(segments, line);)
            EXPECT_EQ(line.find(" RWE "), std::string::npos) << program << ": " << line;
    }
}

TEST_F(HardeningTest, framesAreChecked) {
    for (const std::string& program : programs())
        EXPECT_TRUE(checksIn(program).contains("__stack_chk_fail")) << program;
}

/// The small helpers copy nothing of a size that the compiler knows.
TEST_F(HardeningTest, copiesAreBounded) {
    for (const std::string& program : programs()) {
        if (program.ends_with("-access") || program.ends_with("-guard") || program.ends_with("-portal")) {
            continue;
        }
        EXPECT_TRUE(checksIn(program).contains("__snprintf_chk")) << program;
    }
}

TEST_F(HardeningTest, jumpsGoOnlyWhereTheyMay) {
    // The start-up code of the compiler and the C library has a few in every program.
    constexpr std::ptrdiff_t fewest = 20;
    const std::regex landing("\tendbr|\tbti");
    for (const std::string& program : programs()) {
        const std::string code = outputOf({"objdump", "--disassemble", "--no-show-raw-insn", program});
        EXPECT_GT(std::distance(std::sregex_iterator(code.begin(), code.end(), landing), {}), fewest)
            << program;
    }
}

}  // namespace

// SPDX-License-Identifier: MIT
//
// Facts from trees as they were found on real machines, and from broken ones.
#include "platform/linux/MachineFacts.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <map>

#include "support/Child.h"

namespace {

using Files = std::map<std::string, std::string>;

/// What the bug report says of a machine with these files: system, machine, count x MHz, MB.
std::string factsOf(const Files& files) {
    const TemporaryFolder root;
    for (const auto& [path, content] : files) {
        std::filesystem::create_directories(std::filesystem::path(root.path() + path).parent_path());
        std::ofstream(root.path() + path, std::ios::binary) << content;
    }
    const MachineFacts facts(root.path());
    return facts.systemVersion() + "; " + facts.machineName().value_or("(unknown)") + "; " +
           std::to_string(facts.processors()) + "x" + std::to_string(facts.processorClock()) + "MHz; " +
           std::to_string(facts.memory()) + "MB";
}

std::string systemOf(const std::string& release) {
    const std::string facts = factsOf({{"/etc/os-release", release}});
    return facts.substr(0, facts.find(';'));
}

std::string machineOf(const Files& files) {
    const std::string facts = factsOf(files);
    const auto start = facts.find("; ") + 2;
    return facts.substr(start, facts.find(';', start) - start);
}

std::string processorsOf(const Files& files) {
    const std::string facts = factsOf(files);
    const auto start = facts.find("; ", facts.find("; ") + 1) + 2;
    return facts.substr(start, facts.find(';', start) - start);
}

const std::string cpu = "/sys/devices/system/cpu/";

TEST(MachineFactsTest, areThoseOfALaptop) {
    EXPECT_EQ(factsOf({{"/etc/os-release",
                        R"text(PRETTY_NAME="Debian GNU/Linux 12 (bookworm)"
NAME="Debian GNU/Linux"
VERSION_ID="12"
VERSION="12 (bookworm)"
ID=debian
)text"},
                       {"/sys/class/dmi/id/product_name", "20XW00FPMH\n"},
                       {"/sys/class/dmi/id/product_serial", "PF000000\n"},
                       {cpu + "present", "0-7\n"},
                       {cpu + "cpu0/cpufreq/cpuinfo_max_freq", "4200000\n"},
                       {cpu + "cpu7/cpufreq/cpuinfo_max_freq", "4200000\n"},
                       {"/proc/cpuinfo",
                        "processor\t: 0\ncpu MHz\t\t: 899.998\n\nprocessor\t: 1\ncpu MHz\t\t: 400\n"},
                       {"/proc/meminfo", "MemTotal:       16077216 kB\nMemFree:          391888 kB\n"}}),
              "Debian GNU/Linux 12 (bookworm); 20XW00FPMH; 8x4200MHz; 15700MB");
}

TEST(MachineFactsTest, areThoseOfASmallBoard) {
    EXPECT_EQ(
        factsOf({{"/usr/lib/os-release", "PRETTY_NAME='Raspbian GNU/Linux 11 (bullseye)'\nNAME=Raspbian\n"},
                 {"/proc/device-tree/model", std::string("Raspberry Pi 4 Model B Rev 1.4\0", 31)},
                 {cpu + "present", "0-3\n"},
                 {cpu + "cpu0/cpufreq/cpuinfo_max_freq", "1800000\n"},
                 {"/proc/cpuinfo", "processor\t: 0\nBogoMIPS\t: 108.00\n\nModel\t\t: Raspberry Pi 4\n"},
                 {"/proc/meminfo", "MemTotal:        3884416 kB\n"}}),
        "Raspbian GNU/Linux 11 (bullseye); Raspberry Pi 4 Model B Rev 1.4; 4x1800MHz; 3793MB");
}

TEST(MachineFactsTest, areThoseOfAVirtualMachineWithoutFirmware) {
    EXPECT_EQ(factsOf({{"/etc/os-release", "NAME=Alpine\\ Linux\nID=alpine\n"},
                       {cpu + "present", "0-1\n"},
                       {cpu + "cpuidle/current_driver", "none\n"},
                       {"/proc/cpuinfo",
                        "processor\t: 0\ncpu MHz\t\t: 2399.998\n\nprocessor\t: 1\ncpu MHz\t\t: 2399.502\n"},
                       {"/proc/meminfo", "MemTotal:        4194304 kB\n"}}),
              "Alpine Linux; (unknown); 2x2400MHz; 4096MB");
}

TEST(MachineFactsTest, haveAValueForWhatIsNotKnown) {
    const std::string nothing = "Linux; (unknown); 0x0MHz; 0MB";
    EXPECT_EQ(factsOf({}), nothing);
    EXPECT_EQ(factsOf({{"/etc/os-release", ""},
                       {"/sys/class/dmi/id/product_name", ""},
                       {"/proc/device-tree/model", std::string("\0", 1)},
                       {cpu + "present", ""},
                       {cpu + "cpu0/cpufreq/cpuinfo_max_freq", ""},
                       {"/proc/cpuinfo", ""},
                       {"/proc/meminfo", ""}}),
              nothing);
    EXPECT_EQ(factsOf({{"/etc/os-release", "PRETTY_NAME=\nNAME=\"\"\n=x\n"},
                       {"/sys/class/dmi/id/product_name", "Default string\n"},
                       {cpu + "present", "many\n"},
                       {cpu + "cpu0/cpufreq/cpuinfo_max_freq", "<unknown>\n"},
                       {"/proc/cpuinfo", "cpu MHz\t\t: unknown\n"},
                       {"/proc/meminfo", "MemTotal: much kB\nMemory: 1 kB\n"}}),
              nothing);
}

TEST(MachineFactsTest, readTheSystemsNameAsAShellWould) {
    EXPECT_EQ(systemOf("PRETTY_NAME=\"A \\\"B\\\" \\$C\"\n"), R"(A "B" $C)");
    EXPECT_EQ(systemOf("PRETTY_NAME='A \"B\"'\n"), R"(A "B")");
    EXPECT_EQ(systemOf("# PRETTY_NAME=no\nPRETTY_NAME=Arch\n"), "Arch");
    EXPECT_EQ(systemOf("PRETTY_NAME=First\nPRETTY_NAME=Last"), "Last");
    EXPECT_EQ(systemOf("NAME=Void\n"), "Void");
    EXPECT_EQ(systemOf("PRETTY_NAME=\"never closed\n"), "\"never closed");
}

TEST(MachineFactsTest, takeNoPlaceholderForAMachine) {
    for (const std::string name :
         {"System Product Name", "To Be Filled By O.E.M.", "Default string", "None", " \n"}) {
        EXPECT_EQ(machineOf({{"/sys/class/dmi/id/product_name", name}}), "(unknown)") << name;
        EXPECT_EQ(machineOf({{"/sys/class/dmi/id/product_name", name}, {"/proc/device-tree/model", "Board"}}),
                  "Board");
    }
}

TEST(MachineFactsTest, countPresentProcessors) {
    EXPECT_EQ(processorsOf({{cpu + "present", "0\n"}}), "1x0MHz");
    EXPECT_EQ(processorsOf({{cpu + "present", "0-7,16-19\n"}, {cpu + "online", "0-3\n"}}), "12x0MHz");
    EXPECT_EQ(processorsOf({{cpu + "present", "0,2,4\n"}}), "3x0MHz");
    EXPECT_EQ(processorsOf({{cpu + "present", "7-0\n"}}), "0x0MHz");
    EXPECT_EQ(processorsOf({{"/proc/cpuinfo", "processor\t: 0\nprocessor\t: 1\n"}}), "2x0MHz");
}

TEST(MachineFactsTest, roundTheFastestClock) {
    EXPECT_EQ(processorsOf({{"/proc/cpuinfo", "cpu MHz : 1999.499\n"}}), "0x1999MHz");
    EXPECT_EQ(processorsOf({{"/proc/cpuinfo", "cpu MHz : 800\ncpu MHz : 1999.5\n"}}), "0x2000MHz");
    EXPECT_EQ(processorsOf({{cpu + "cpu0/cpufreq/cpuinfo_max_freq", "2399600\n"},
                            {cpu + "cpu1/cpufreq/cpuinfo_max_freq", "3100400\n"}}),
              "0x3100MHz");
    EXPECT_EQ(processorsOf({{cpu + "cpu0/cpufreq/cpuinfo_max_freq", "99999999999999\n"}}), "0x2147483647MHz");
}

TEST(MachineFactsTest, areReadFromThisMachineToo) {
    const MachineFacts facts;
    EXPECT_EQ(facts.processors(),
              static_cast<std::uint32_t>(std::stoul(outputOf({"getconf", "_NPROCESSORS_CONF"}))));
    EXPECT_GT(facts.memory(), 0);
}

}  // namespace

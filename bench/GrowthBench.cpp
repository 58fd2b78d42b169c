// SPDX-License-Identifier: MIT
//
// What grows a little many times, or is looked at in many places: a text, a text with more than ASCII in it,
// a list at its beginning; each at two sizes, which shows whether the cost grows as the work does, and beside
// perl.
#include <array>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <string>

#include "Table.h"
#include "platform/script/code/Compiler.h"
#include "platform/script/run/Run.h"

namespace {

class IdleInjector : public KeyInjector {
  public:
    Result<std::unique_ptr<InjectionSession>> open(const InjectionPlan& /*plan*/) override {
        return Error{"There is no keyboard here.", ""};
    }
    void startPlayback() override {}
    bool isCancelled() override { return false; }
};

/// COUNT stands for how often.
struct Work {
    const char* name;
    const char* script;
    const char* perl;
};

constexpr std::array<Work, 3> works{{
    {"append to a text", "set t to \"\"\nrepeat COUNT times\nset t to t & \"x\"\nend repeat\nlength of t",
     "my $t=q(); $t.=q(x) for 1..COUNT; my $r=length $t;"},
    {"character i of a text with accents",
     "set t to \"\"\nrepeat COUNT times\nset t to t & \"é\"\nend repeat\nrepeat with i from 1 to COUNT\n"
     "set c to character i of t\nend repeat\nc",
     "my $t=\"\\x{e9}\\x{20ac}\" x (COUNT/2); my $c; $c=substr($t,$_-1,1) for 1..COUNT;"},
    {"set beginning of a list",
     "set l to {}\nrepeat with i from 1 to COUNT\nset beginning of l to i\nend repeat\ncount of l",
     "my @l; unshift @l,$_ for 1..COUNT; my $n=@l;"},
}};

std::string with(std::string text, int count) {
    const std::string number = std::to_string(count);
    for (auto at = text.find("COUNT"); at != std::string::npos; at = text.find("COUNT"))
        text.replace(at, 5, number);
    return text;
}

double processorSeconds() {
    timespec time{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) / 1e9;
}

double ours(const Work& work, int count) {
    const auto program = script::compile(with(work.script, count));
    if (!program) std::abort();
    IdleInjector injector;
    script::SilentDesktop desktop;
    script::NoDialogs dialogs;
    const double begin = processorSeconds();
    const script::RunResult result = script::run(program.value(), {injector, desktop, dialogs});
    if (result.end != script::RunEnd::finished) std::abort();
    return processorSeconds() - begin;
}

/// Its processor time for the work alone.
double perls(const Work& work, int count) {
    const std::string command = "perl -e 'my $begin=(times)[0]; my $rounds=20; for(1..$rounds){" +
                                with(work.perl, count) + "} print(((times)[0]-$begin)/$rounds)'";
    std::FILE* pipe = popen(command.c_str(), "r");
    double seconds = 0;
    const bool isRead = pipe != nullptr && std::fscanf(pipe, "%lf", &seconds) == 1;
    if (pipe != nullptr) pclose(pipe);
    if (!isRead) std::abort();
    return seconds;
}

}  // namespace

int main() {
    for (const Work& work : works) {
        for (const int count : {25000, 100000}) {
            const std::string what = std::to_string(count) + " x " + work.name;
            printRow({what, ours(work, count) * 1000, "perl", perls(work, count) * 1000, "ms", ""});
        }
        printRow({std::string("100000 x ") + work.name, ours(work, 100000) * 1000, "allowed", 200, "ms",
                  "ratio <= 1"});
    }
}

// SPDX-License-Identifier: MIT
#include <sstream>

#include "contracts/KeyInjectorContract.h"
#include "platform/fake/FakePlatform.h"

namespace {

/// The application in front, which reads the steps that were posted.
class StepReader {
  public:
    std::string textOf(const std::vector<std::string>& steps) {
        for (const std::string& step : steps) read(step);
        return m_text;
    }

  private:
    void read(const std::string& step) {
        std::istringstream words(step);
        std::string verb;
        std::string what;
        words >> verb >> what;
        if (verb == "text") m_text += step.substr(verb.size() + 1);
        if (what == "shift") m_shift = verb == "down";
        if (verb != "key") return;
        const bool shift = m_shift || step.ends_with(" shift");
        if (what == "0") m_text += shift ? 'A' : 'a';
        if (what == "11") m_text += shift ? 'B' : 'b';
    }

    std::string m_text;
    bool m_shift = false;
};

class FakeKeyInjectorWorld : public KeyInjectorWorld {
  public:
    KeyInjector& injector() override { return m_platform.keyInjector; }
    std::string typed(std::size_t /*bytes*/) override {
        return StepReader().textOf(m_platform.keyInjector.postedKeys());
    }

  private:
    FakePlatform m_platform;
};

std::unique_ptr<KeyInjectorWorld> makeWorld() { return std::make_unique<FakeKeyInjectorWorld>(); }

INSTANTIATE_TEST_SUITE_P(Fake, KeyInjectorContract, testing::Values(&makeWorld));

}  // namespace

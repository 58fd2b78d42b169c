// SPDX-License-Identifier: MIT
#include "library/steps/Steps.h"

#include <unordered_map>
#include <utility>

#include "library/steps/TypingKeys.h"
#include "platform/KeyCodes.h"
#include "platform/Utf8.h"

namespace steps {
namespace {

/// Asks the layout once for each key.
class TypedTexts {
  public:
    explicit TypedTexts(const KeyboardLayout& layout) : m_layout(layout) {}

    const std::string& of(const Line& line) {
        const std::uint64_t key = std::uint64_t{line.modifiers} << 32U | line.keyCode;
        const auto known = m_known.find(key);
        if (known != m_known.end()) return known->second;
        return m_known.emplace(key, typedBy(m_layout, line)).first->second;
    }

  private:
    const KeyboardLayout& m_layout;
    std::unordered_map<std::uint64_t, std::string> m_known;
};

Step stepOf(const RecordedScript& recording, std::size_t index, TypedTexts& typed) {
    const Line& line = recording.lines()[index];
    Step step{.first = index, .keyCode = line.keyCode, .modifiers = line.modifiers, .seconds = line.seconds};
    switch (line.kind) {
        case LineKind::pause:
            step.kind = StepKind::pause;
            break;
        case LineKind::text:
            step.kind = StepKind::text;
            step.text = recording.textOf(line);
            break;
        case LineKind::down:
        case LineKind::up:
            step.kind = line.kind == LineKind::down ? StepKind::keyDown : StepKind::keyUp;
            step.keyCode = keycode::none;
            break;
        case LineKind::key:
            step.text = typed.of(line);
            if (!step.text.empty()) step.kind = StepKind::typing;
            break;
    }
    return step;
}

bool doTheSame(const Step& one, const Step& other) {
    return one.kind == other.kind && one.count == one.repeats * other.count && one.keyCode == other.keyCode &&
           one.modifiers == other.modifiers && one.seconds == other.seconds && one.text == other.text;
}

std::size_t characters(const std::string& text) {
    std::size_t count = 0;
    for (const char byte : text) count += isUtf8Continuation(byte) ? 0 : 1;
    return count;
}

}  // namespace

void append(std::vector<Step>& steps, const Step& step) {
    if (steps.empty()) return steps.push_back(step);
    Step& last = steps.back();
    const bool areTyped = last.kind == StepKind::typing && step.kind == StepKind::typing;
    if (areTyped && last.count < longestTyping && characters(last.text) < longestTyping) {
        last.text += step.text;
        last.count += step.count;
    } else if (!areTyped && doTheSame(last, step)) {
        last.count += step.count;
        last.repeats += step.repeats;
    } else {
        steps.push_back(step);
    }
}

std::vector<Step> stepsOf(const RecordedScript& recording, const KeyboardLayout& layout) {
    TypedTexts typed(layout);
    std::vector<Step> steps;
    for (std::size_t index = 0; index < recording.lines().size(); ++index) {
        Step step = stepOf(recording, index, typed);
        if (step.kind == StepKind::typing) step.keyCode = step.modifiers = 0;
        // What is told about a step is not told in the middle of another.
        if (recording.lines()[index].remarks > 0) {
            steps.push_back(step);
        } else {
            append(steps, step);
        }
    }
    return steps;
}

}  // namespace steps

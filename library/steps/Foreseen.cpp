// SPDX-License-Identifier: MIT
#include "library/steps/Foreseen.h"

#include <memory>
#include <sstream>
#include <utility>
#include <variant>

#include "platform/KeyCodes.h"
#include "platform/KeyInjector.h"
#include "platform/script/code/Compiler.h"
#include "platform/script/run/Run.h"
#include "platform/script/run/TraceServices.h"

namespace steps {
namespace {

/// Takes down what is done, as long as patience lasts.
class Notes {
  public:
    Notes(std::vector<Step>& steps, const Patience& patience) : m_steps(steps), m_patience(patience) {}

    bool isOver() const {
        return m_noted >= m_patience.mostSteps || (m_patience.isOver && m_patience.isOver());
    }

    ::Step<> note(Step step) {
        if (m_noted >= m_patience.mostSteps) return Halt::cancelled();
        ++m_noted;
        append(m_steps, step);
        return {};
    }

  private:
    std::vector<Step>& m_steps;
    const Patience& m_patience;
    std::size_t m_noted = 0;
};

/// What is held, as a step of that kind.
struct HeldStep {
    StepKind kind;

    Step operator()(const HeldModifier& held) const {
        return {.kind = kind, .keyCode = keycode::none, .modifiers = held.modifier};
    }
    Step operator()(const HeldCode& held) const { return {.kind = kind, .keyCode = held.keyCode}; }
    Step operator()(const HeldText& held) const {
        return {.kind = kind, .keyCode = keycode::none, .text = held.text};
    }
};

class NotingSession : public InjectionSession {
  public:
    explicit NotingSession(Notes& notes) : m_notes(notes) {}

    ::Step<> stroke(std::uint32_t keyCode, std::uint32_t modifiers) override {
        return m_notes.note({.kind = StepKind::key, .keyCode = keyCode, .modifiers = modifiers});
    }
    ::Step<> text(std::string_view text, std::uint32_t modifiers) override {
        return m_notes.note({.kind = StepKind::text, .modifiers = modifiers, .text = std::string(text)});
    }
    ::Step<> keyDown(const HeldKey& key) override {
        return m_notes.note(std::visit(HeldStep{StepKind::keyDown}, key));
    }
    ::Step<> keyUp(const HeldKey& key) override {
        return m_notes.note(std::visit(HeldStep{StepKind::keyUp}, key));
    }
    ::Step<> pause(double seconds) override {
        return m_notes.note({.kind = StepKind::pause, .seconds = seconds});
    }

  private:
    Notes& m_notes;
};

class NotingInjector : public KeyInjector {
  public:
    explicit NotingInjector(Notes& notes) : m_notes(notes) {}

    Result<std::unique_ptr<InjectionSession>> open(const InjectionPlan& /*plan*/) override {
        return std::unique_ptr<InjectionSession>(std::make_unique<NotingSession>(m_notes));
    }
    void startPlayback() override {}
    bool isCancelled() override { return m_notes.isOver(); }

  private:
    Notes& m_notes;
};

class NotingDialogs : public script::TraceDialogs {
  public:
    NotingDialogs(Notes& notes, std::ostream& unread) : TraceDialogs(unread), m_notes(notes) {}

    Result<ScriptAnswer> ask(const ScriptDialog& dialog) override {
        static_cast<void>(m_notes.note({.kind = StepKind::question, .text = dialog.text}));
        return TraceDialogs::ask(dialog);
    }
    Result<void> notify(const ScriptNotification& notification) override {
        static_cast<void>(m_notes.note({.kind = StepKind::notification, .text = notification.text}));
        return TraceDialogs::notify(notification);
    }

  private:
    Notes& m_notes;
};

}  // namespace

Foreseen foreseen(const std::string& source, const Patience& patience) {
    Foreseen result;
    auto program = script::compile(source);
    if (!program) {
        result.error = program.error();
        return result;
    }
    Notes notes(result.steps, patience);
    std::ostringstream unread;
    NotingInjector injector(notes);
    script::TraceDesktop desktop(unread);
    NotingDialogs dialogs(notes, unread);
    script::RunResult run = script::run(program.value(), {injector, desktop, dialogs});
    result.isCut = run.end == script::RunEnd::cancelled && notes.isOver();
    // A script may cancel itself, as by the button of a question.
    const bool hasFailed = run.error && run.error->number != script::errornumber::userCancelled;
    if (hasFailed) result.error = std::move(run.error);
    return result;
}

}  // namespace steps

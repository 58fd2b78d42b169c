// SPDX-License-Identifier: MIT
#include "platform/script/values/SourceForm.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <utility>

#include "platform/Sentence.h"
#include "platform/script/source/Scoped.h"
#include "platform/script/source/ScriptError.h"
#include "platform/script/source/Wording.h"
#include "platform/script/values/Dates.h"
#include "platform/script/values/ModifierWords.h"

namespace script {
namespace {

constexpr int significantDigits = 12;
constexpr std::size_t maxLength = 4096;
constexpr std::size_t maxQuotedLength = 200;
constexpr int maxDepth = 500;

/// A real as its digits without trailing zeros, and the power of ten of the first digit.
struct Digits {
    std::string digits;
    int exponent = 0;
};

Digits digitsOf(double magnitude) {
    std::array<char, 32> buffer{};
    const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), magnitude,
                                      std::chars_format::scientific, significantDigits - 1);
    const std::string_view text(buffer.data(), static_cast<std::size_t>(result.ptr - buffer.data()));
    const std::size_t mark = text.find('e');
    Digits found;
    found.digits = std::string(1, text.front()) + std::string(text.substr(2, mark - 2));
    found.digits.erase(found.digits.find_last_not_of('0') + 1);
    if (found.digits.empty()) found.digits = "0";
    const std::size_t first = text[mark + 1] == '+' ? mark + 2 : mark + 1;
    std::from_chars(text.data() + first, text.data() + text.size(), found.exponent);
    return found;
}

/// `digits` with the point behind the first `whole` ones, filled with zeros on both sides.
std::string pointed(const std::string& digits, int whole) {
    std::string text = digits;
    if (whole < 1) text.insert(0, static_cast<std::size_t>(1 - whole), '0');
    const auto point = static_cast<std::size_t>(whole < 1 ? 1 : whole);
    if (text.size() <= point) text.append(point + 1 - text.size(), '0');
    return text.insert(point, 1, '.');
}

/// Appends the source form of values until there is enough of it.
class SourceWriter {
  public:
    /// What is longer than so many bytes is cut off.
    explicit SourceWriter(std::size_t most) : m_most(most) {}

    std::string take() {
        if (m_out.size() <= m_most) return std::move(m_out);
        return shortened(m_out, m_most);
    }

    void add(const Value& value) {
        if (m_out.size() > m_most) return;
        const Scoped<int> depth(m_depth, m_depth + 1);
        if (m_depth > maxDepth) {
            m_out += "…";
            return;
        }
        std::visit([this](const auto& content) { write(content); }, value.content);
    }

  private:
    void write(Nothing /*unused*/) {}
    void write(Missing /*unused*/) { m_out += "missing value"; }
    void write(bool value) { m_out += value ? "true" : "false"; }
    void write(std::int64_t value) { m_out += std::to_string(value); }
    void write(double value) { m_out += realText(value); }
    void write(const Text& text) { quote(text.str()); }
    void write(const Modifier& constant) { m_out += constantText(constant); }
    void write(const CalendarName& constant) { m_out += constantText(constant); }
    void write(Type type) { m_out += type == Type::text ? "text" : typeName(type); }
    void write(const Shared<ListBody>& list);
    void write(const Shared<RecordBody>& record);
    void write(const Shared<DateBody>& date) { m_out += "date \"" + dateText(date->seconds) + "\""; }
    void write(const Shared<CellBody>& cell) { add(cell->content); }
    void write(const Shared<ReferenceBody>& reference) {
        if (reference->container.cell() != nullptr) return add(reference->container);
        m_out += sourceForm(reference->element) + " of ";
        add(reference->container);
    }
    void write(const Shared<TargetBody>& target);
    void quote(std::string_view text);

    std::size_t m_most;
    std::string m_out;
    int m_depth = 0;
};

void SourceWriter::write(const Shared<ListBody>& list) {
    m_out += "{";
    bool isFirst = true;
    for (const Value& item : list->items) {
        if (m_out.size() > m_most) return;
        if (!std::exchange(isFirst, false)) m_out += ", ";
        add(item);
    }
    m_out += "}";
}

void SourceWriter::write(const Shared<RecordBody>& record) {
    m_out += "{";
    bool isFirst = true;
    for (const Field& field : record->fields) {
        if (m_out.size() > m_most) return;
        if (!std::exchange(isFirst, false)) m_out += ", ";
        m_out += sourceForm(*field.name) + ":";
        add(field.value);
    }
    m_out += "}";
}

void SourceWriter::write(const Shared<TargetBody>& target) {
    switch (target->kind) {
        case TargetBody::Kind::script:
            m_out += "«script»";
            return;
        case TargetBody::Kind::process:
            m_out += "process ";
            break;
        default:
            m_out += "application ";
            break;
    }
    quote(target->name.str());
}

void SourceWriter::quote(std::string_view text) {
    m_out += '"';
    for (const char c : text) {
        if (m_out.size() > m_most + 8) return;
        if (c == '"' || c == '\\') m_out += '\\';
        m_out += c;
    }
    m_out += '"';
}

std::string_view kindName(const Element& element) {
    constexpr std::array<std::string_view, 7> kindNames{"item",      "character", "word", "paragraph",
                                                        "text item", "text",      ""};
    if (element.kind == ElementKind::typed) return typeName(element.type);
    return kindNames[static_cast<std::size_t>(element.kind)];
}

}  // namespace

std::string realText(double value) {
    constexpr double large = 10000;
    constexpr double small = 0.001;
    const double magnitude = std::abs(value);
    const std::string sign = value < 0 ? "-" : "";
    const Digits found = digitsOf(magnitude);
    if (magnitude == 0 || (magnitude > small && magnitude < large)) {
        return sign + pointed(found.digits, found.exponent + 1);
    }
    return sign + pointed(found.digits, 1) + "E" + (found.exponent < 0 ? "" : "+") +
           std::to_string(found.exponent);
}

std::string constantText(const Modifier& constant) {
    const auto* row = std::find_if(modifierWords.begin(), modifierWords.end(), [&](const ModifierWord& word) {
        return word.modifier == constant.modifier;
    });
    const std::string name(row == modifierWords.end() ? "" : spellingOf(row->word));
    return constant.down ? name + " down" : name;
}

std::string constantText(const CalendarName& constant) {
    return std::string(constant.kind == CalendarName::Kind::month ? monthName(constant.number)
                                                                  : weekdayName(constant.number));
}

std::string sourceForm(const Value& value) {
    SourceWriter writer(maxLength);
    writer.add(value);
    return writer.take();
}

std::string quotedForm(const Value& value) {
    SourceWriter writer(maxQuotedLength);
    writer.add(value);
    return writer.take();
}

std::string sourceForm(const Element& element) {
    const std::string kind(kindName(element));
    const std::string first = std::to_string(element.first);
    switch (element.form) {
        case ElementForm::index:
            return kind + " " + first;
        case ElementForm::range:
            return kind + (element.kind == ElementKind::text ? " " : "s ") + first + " thru " +
                   std::to_string(element.last);
        case ElementForm::some:
            return "some " + kind;
        case ElementForm::middle:
            return "middle " + kind;
        default:
            return "every " + kind;
    }
}

Failure standardFailure(int number) { return {number, standardMessage(number)}; }

Failure cannotMake(const Value& value, Sentence type) {
    return {
        errornumber::cannotCoerce,
        sentence("ScriptErrors", "Can’t make %1 into type %2.").arg(quotedForm(value)).arg(std::move(type))};
}

Failure cannotGet(std::string what) {
    return {errornumber::noSuchObject, sentence("ScriptErrors", "Can’t get %1.").arg(std::move(what))};
}

Failure cannotSet(std::string what, const Value& value) {
    return {errornumber::cannotSet,
            sentence("ScriptErrors", "Can’t set %1 to %2.").arg(std::move(what)).arg(quotedForm(value))};
}

}  // namespace script

// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <iterator>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

#include "platform/Result.h"
#include "platform/script/source/Name.h"
#include "platform/script/values/Shared.h"
#include "platform/script/values/Text.h"

namespace script {

/// No value: a variable that was never set, a statement that gives none.
struct Nothing {
    friend bool operator==(Nothing, Nothing) = default;
};

/// `missing value`.
struct Missing {
    friend bool operator==(Missing, Missing) = default;
};

/// `command down`, or `command` as the name of the key.
struct Modifier {
    std::uint32_t modifier = 0;  ///< one bit of platform/Modifiers.h
    bool down = false;

    friend bool operator==(const Modifier&, const Modifier&) = default;
};

/// A month (January is 1) or a weekday (Sunday is 1).
struct CalendarName {
    enum class Kind : std::uint8_t { month, weekday } kind = Kind::month;
    std::uint8_t number = 1;

    friend bool operator==(const CalendarName&, const CalendarName&) = default;
};

/// The classes of values, and those that only coercions know.
enum class Type : std::uint8_t {
    integer,
    real,
    number,
    text,
    boolean,
    list,
    record,
    date,
    classType,
    constant,
    reference,
    script,
    application,
    process,
    month,
    weekday,
    item,
    anything,
};

/// "integer"; "class" for classType.
std::string_view typeName(Type type);

struct Value;
struct ListBody;
struct RecordBody;
struct DateBody;
struct ReferenceBody;
struct TargetBody;
struct CellBody;
class List;

/// What an expression gives: a whole number within maxInteger, a real (finite), a text, a constant, a class,
/// or an object, which its owners share.
struct Value {
    using Content = std::variant<Nothing, Missing, bool, std::int64_t, double, Text, Modifier, CalendarName,
                                 Type, Shared<ListBody>, Shared<RecordBody>, Shared<DateBody>,
                                 Shared<ReferenceBody>, Shared<TargetBody>, Shared<CellBody>>;

    Value() = default;
    /// Of one of the types above and of no other, so that nothing is converted on the way.
    template <typename Alternative>
    explicit Value(Alternative value) : content(std::in_place_type<Alternative>, std::move(value)) {}
    explicit Value(std::string text) : Value(Text(std::move(text))) {}
    explicit Value(List items);

    Content content;

    template <typename Alternative>
    const Alternative* as() const {
        return std::get_if<Alternative>(&content);
    }
    template <typename Alternative>
    bool is() const {
        return std::holds_alternative<Alternative>(content);
    }
    /// Null if the value is no text.
    const std::string_view* text() const;
    /// Null if the value is no list.
    List* list() const;
    RecordBody* record() const;
    DateBody* date() const;
    ReferenceBody* reference() const;
    TargetBody* target() const;
    /// Of a variable: what it holds.
    CellBody* cell() const;
};

/// The items of a list: a vector that takes items at its beginning as quickly as at its end.
class List {
  public:
    using value_type = Value;
    using iterator = std::vector<Value>::iterator;
    using const_iterator = std::vector<Value>::const_iterator;

    List() = default;
    List(std::initializer_list<Value> items) : m_items(items) {}
    template <typename Iterator>
    List(Iterator first, Iterator last) : m_items(first, last) {}

    std::size_t size() const { return m_items.size() - m_first; }
    bool empty() const { return size() == 0; }
    /// For how many items it holds memory.
    std::size_t capacity() const { return m_items.capacity(); }
    Value& operator[](std::size_t place) { return m_items[m_first + place]; }
    const Value& operator[](std::size_t place) const { return m_items[m_first + place]; }
    Value& front() { return m_items[m_first]; }
    const Value& front() const { return m_items[m_first]; }
    Value& back() { return m_items.back(); }
    const Value& back() const { return m_items.back(); }

    iterator begin() { return m_items.begin() + static_cast<std::ptrdiff_t>(m_first); }
    iterator end() { return m_items.end(); }
    const_iterator begin() const { return m_items.begin() + static_cast<std::ptrdiff_t>(m_first); }
    const_iterator end() const { return m_items.end(); }
    auto rbegin() const { return std::make_reverse_iterator(end()); }
    auto rend() const { return std::make_reverse_iterator(begin()); }

    void reserve(std::size_t count) { m_items.reserve(m_first + count); }
    void push_back(Value value) { m_items.push_back(std::move(value)); }
    void pushFront(Value value) {
        if (m_first == 0) makeRoom();
        m_items[--m_first] = std::move(value);
    }
    template <typename Iterator>
    void append(Iterator first, Iterator last) {
        m_items.insert(m_items.end(), first, last);
    }
    void clear() {
        m_items.clear();
        m_first = 0;
    }

  private:
    /// As much as there are items, so that an item is moved no more than a few times.
    void makeRoom() {
        constexpr std::size_t least = 8;
        m_first = std::max(least, m_items.size());
        m_items.insert(m_items.begin(), m_first, Value());
    }

    std::vector<Value> m_items;
    std::size_t m_first = 0;  ///< what is before it is room
};

struct ListBody : Counted {
    explicit ListBody(List content);
    /// To be called after the items were changed.
    void didChange();
    List items;
    HeldMemory memory;
};

struct Field {
    const Name* name = nullptr;
    Value value;
};

struct RecordBody : Counted {
    explicit RecordBody(std::vector<Field> content);
    /// Null if there is no such field.
    Value* find(const Name& name);
    void add(Field field);
    std::vector<Field> fields;
    HeldMemory memory;
};

/// A moment of the calendar, in seconds since 1970 began in this time zone.
struct DateBody : Counted {
    explicit DateBody(std::int64_t moment) : seconds(moment) {}
    std::int64_t seconds;
};

/// The ways to name elements.
enum class ElementKind : std::uint8_t { item, character, word, paragraph, textItem, text, typed };
enum class ElementForm : std::uint8_t { index, middle, some, every, range };

/// Elements within their container, as `item 2`.
struct Element {
    ElementKind kind = ElementKind::item;
    ElementForm form = ElementForm::index;
    Type type = Type::anything;  ///< of the kind `typed`: the class of the elements
    std::int32_t first = 0;      ///< from 1, negative from the end
    std::int32_t last = 0;       ///< of a range
};

/// What a variable holds that a reference leads to: the variable holds the cell.
struct CellBody : Counted {
    explicit CellBody(Value value) : content(std::move(value)) {}
    Value content;
};

/// `item 2 of L` that was kept and not yet looked up, or a variable: the container is its cell then.
struct ReferenceBody : Counted {
    ReferenceBody(Value whole, Element part);
    Value container;
    Element element;
};

/// What `tell` can address and `me` and `it` can be.
struct TargetBody : Counted {
    enum class Kind : std::uint8_t { script, systemEvents, application, process };
    TargetBody(Kind which, Text what) : kind(which), name(std::move(what)) {}
    Kind kind;
    Text name;
};

/// Why a step of a run failed; the place is added by who knows it.
struct Failure {
    int number = 0;
    /// As those of a ScriptError.
    Sentence message;
    Sentence hint = {};
    /// What `error` was given beside them, or nothing.
    Value from = {};
    Value partialResult = {};
    Value to = {};
    /// Whether the user asked to stop, which no script can catch.
    bool isCancel = false;
};

/// What a step of a run gives, or why it failed.
template <typename Content = void>
using Fallible = Result<Content, Failure>;

}  // namespace script

// SPDX-License-Identifier: MIT
#include "platform/script/values/Value.h"

#include <algorithm>
#include <array>

namespace script {
namespace {

constexpr std::array<std::string_view, 18> typeNames{
    "integer",  "real",      "number", "text",        "boolean", "list",  "record",  "date", "class",
    "constant", "reference", "script", "application", "process", "month", "weekday", "item", "anything"};

}  // namespace

std::string_view typeName(Type type) { return typeNames[static_cast<std::size_t>(type)]; }

Value::Value(List items) : Value(makeShared<ListBody>(std::move(items))) {}

const std::string_view* Value::text() const {
    const auto* found = as<Text>();
    return found == nullptr ? nullptr : &found->str();
}

List* Value::list() const {
    const auto* found = as<Shared<ListBody>>();
    return found == nullptr ? nullptr : &(*found)->items;
}

RecordBody* Value::record() const {
    const auto* found = as<Shared<RecordBody>>();
    return found == nullptr ? nullptr : found->get();
}

DateBody* Value::date() const {
    const auto* found = as<Shared<DateBody>>();
    return found == nullptr ? nullptr : found->get();
}

ReferenceBody* Value::reference() const {
    const auto* found = as<Shared<ReferenceBody>>();
    return found == nullptr ? nullptr : found->get();
}

TargetBody* Value::target() const {
    const auto* found = as<Shared<TargetBody>>();
    return found == nullptr ? nullptr : found->get();
}

CellBody* Value::cell() const {
    const auto* found = as<Shared<CellBody>>();
    return found == nullptr ? nullptr : found->get();
}

ListBody::ListBody(List content)
    : items(std::move(content)), memory(items.size() * sizeof(Value) + sizeof(ListBody)) {}

void ListBody::didChange() { memory.resize(items.capacity() * sizeof(Value) + sizeof(ListBody)); }

RecordBody::RecordBody(std::vector<Field> content)
    : fields(std::move(content)), memory(fields.size() * sizeof(Field) + sizeof(RecordBody)) {}

Value* RecordBody::find(const Name& name) {
    const auto found =
        std::find_if(fields.begin(), fields.end(), [&](const Field& field) { return field.name == &name; });
    return found == fields.end() ? nullptr : &found->value;
}

void RecordBody::add(Field field) {
    fields.push_back(std::move(field));
    memory.resize(fields.capacity() * sizeof(Field) + sizeof(RecordBody));
}

ReferenceBody::ReferenceBody(Value whole, Element part) : container(std::move(whole)), element(part) {}

}  // namespace script

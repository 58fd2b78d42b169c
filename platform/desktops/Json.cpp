// SPDX-License-Identifier: MIT
#include "platform/desktops/Json.h"

#include <nlohmann/json.hpp>
#include <utility>

/// The library's value, as far down as any answer goes.
class Json::Reader {
  public:
    static std::optional<Json> read(const nlohmann::json& value, int depth = 0) {
        if (depth > deepest) return std::nullopt;
        if (value.is_boolean()) return Json(Value(value.get<bool>()));
        if (value.is_number()) return Json(Value(value.get<double>()));
        if (value.is_string()) return Json(Value(value.get<std::string>()));
        if (value.is_array()) return array(value, depth);
        if (value.is_object()) return object(value, depth);
        return Json();
    }

  private:
    static constexpr int deepest = 512;

    static std::optional<Json> array(const nlohmann::json& value, int depth) {
        std::vector<Json> items;
        for (const nlohmann::json& element : value) {
            auto item = read(element, depth + 1);
            if (!item) return std::nullopt;
            items.push_back(std::move(*item));
        }
        return Json(Value(std::move(items)));
    }

    static std::optional<Json> object(const nlohmann::json& value, int depth) {
        Object members;
        for (const auto& [name, element] : value.items()) {
            auto member = read(element, depth + 1);
            if (!member) return std::nullopt;
            members.emplace(name, std::move(*member));
        }
        return Json(Value(std::move(members)));
    }
};

std::optional<Json> Json::parse(std::string_view text) {
    const auto value = nlohmann::json::parse(text, nullptr, false);
    return value.is_discarded() ? std::nullopt : Reader::read(value);
}

const Json& Json::operator[](std::string_view name) const {
    static const Json none;
    const auto* object = std::get_if<Object>(&m_value);
    if (object == nullptr) return none;
    const auto place = object->find(name);
    return place == object->end() ? none : place->second;
}

const std::vector<Json>& Json::items() const {
    static const std::vector<Json> none;
    const auto* items = std::get_if<std::vector<Json>>(&m_value);
    return items == nullptr ? none : *items;
}

const std::string& Json::text() const {
    static const std::string none;
    const auto* text = std::get_if<std::string>(&m_value);
    return text == nullptr ? none : *text;
}

double Json::number() const {
    const auto* number = std::get_if<double>(&m_value);
    return number == nullptr ? 0 : *number;
}

bool Json::isTrue() const {
    const auto* value = std::get_if<bool>(&m_value);
    return value != nullptr && *value;
}

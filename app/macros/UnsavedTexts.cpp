// SPDX-License-Identifier: MIT
#include "app/macros/UnsavedTexts.h"

#include <chrono>
#include <utility>

namespace {

/// From a change to the disk.
constexpr std::chrono::milliseconds delay{500};

}  // namespace

UnsavedTexts::UnsavedTexts(DraftFiles drafts) : m_drafts(std::move(drafts)) {
    m_timer.setSingleShot(true);
    m_timer.setInterval(delay);
    connect(&m_timer, &QTimer::timeout, this, &UnsavedTexts::keep);
}

UnsavedTexts::~UnsavedTexts() { keep(); }

void UnsavedTexts::load() { m_texts = m_drafts.all(); }

const Draft* UnsavedTexts::find(const std::string& path) const {
    const auto text = m_texts.find(path);
    return text == m_texts.end() ? nullptr : &text->second;
}

void UnsavedTexts::set(const std::string& path, const std::string& text, std::string_view saved) {
    const auto [draft, isNew] = m_texts.try_emplace(path);
    draft->second.text = text;
    if (isNew) draft->second.base = fingerprintOf(saved);
    note(path);
}

void UnsavedTexts::putBack(const std::string& path, Draft draft) {
    m_texts[path] = std::move(draft);
    note(path);
}

std::optional<Draft> UnsavedTexts::take(const std::string& path) {
    auto text = m_texts.extract(path);
    if (!text) return std::nullopt;
    note(path);
    return std::move(text.mapped());
}

void UnsavedTexts::rename(const std::vector<FolderChanges::Rename>& renamed) {
    std::map<std::string, Draft> moved;
    for (const FolderChanges::Rename& rename : renamed) {
        if (auto text = take(rename.from)) moved[rename.to] = *std::move(text);
    }
    for (auto& [path, draft] : moved) putBack(path, std::move(draft));
}

void UnsavedTexts::note(const std::string& path) {
    m_noted.insert(path);
    // Who types on is not to wait for ever.
    if (!m_timer.isActive()) m_timer.start();
}

void UnsavedTexts::keep() {
    for (const std::string& path : std::exchange(m_noted, {})) {
        const Draft* const draft = find(path);
        if (draft == nullptr) {
            m_drafts.forget(path);
        } else if (const Result<> kept = m_drafts.keep(path, *draft); !kept) {
            emit notKept(kept.error());
        }
    }
}

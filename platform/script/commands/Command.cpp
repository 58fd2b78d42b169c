// SPDX-License-Identifier: MIT
#include "platform/script/commands/Command.h"

#include <algorithm>
#include <array>

#include "platform/script/commands/All.h"

namespace script {
namespace {

/// The commands by the first words of their names, those with more words first.
class CommandIndex {
  public:
    CommandIndex() {
        for (std::uint32_t i = 0; i < commands().size(); ++i) {
            Indices& indices = m_byFirstWord[commands()[i]->name.firstHash() % m_byFirstWord.size()];
            const auto behind = std::find_if(indices.begin(), indices.end(), [&](std::uint32_t other) {
                return commands()[other]->name.wordCount() < commands()[i]->name.wordCount();
            });
            indices.insert(behind, i);
        }
    }

    using Indices = std::vector<std::uint32_t>;
    /// Those that may begin with a word of that hash.
    const Indices& beginningWith(std::uint32_t hash) const {
        return m_byFirstWord[hash % m_byFirstWord.size()];
    }

  private:
    std::array<Indices, 128> m_byFirstWord;
};

}  // namespace

const Value* Arguments::at(unsigned bit) const {
    if ((m_mask & (1U << bit)) == 0) return nullptr;
    std::size_t index = 0;
    for (unsigned i = 0; i < bit; ++i) index += (m_mask >> i) & 1U;
    return m_values + index;
}

const std::vector<const Command*>& commands() {
    static const std::vector<const Command*> all{&keyCodeCommand(),
                                                 &keystrokeCommand(),
                                                 &keyDownCommand(),
                                                 &keyUpCommand(),
                                                 &delayCommand(),
                                                 &beepCommand(),
                                                 &activateCommand(),
                                                 &existsCommand(),
                                                 &clipboardCommand(),
                                                 &setClipboardCommand(),
                                                 &displayDialogCommand(),
                                                 &displayAlertCommand(),
                                                 &chooseFromListCommand(),
                                                 &displayNotificationCommand(),
                                                 &countCommand(),
                                                 &numberOfCommand(),
                                                 &offsetCommand(),
                                                 &roundCommand(),
                                                 &randomNumberCommand(),
                                                 &currentDateCommand(),
                                                 &asciiCharacterCommand(),
                                                 &asciiNumberCommand(),
                                                 &logCommand()};
    return all;
}

std::optional<std::uint32_t> commandHere(const TokenStream& tokens) {
    static const CommandIndex index;
    for (const std::uint32_t candidate : index.beginningWith(tokens.current().hash)) {
        const Command& command = *commands()[candidate];
        if (command.isOfDictionary && !tokens.knowsDictionary()) continue;
        if (tokens.isAtPhrase(command.name)) return candidate;
    }
    return std::nullopt;
}

}  // namespace script

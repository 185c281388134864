#include "host/CommandLine.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <string_view>
#include <unistd.h>

namespace host {
namespace {

enum class Quote { none, single, twice };

constexpr std::string_view separators = ";|&()\n";
constexpr std::array systemFolders{"/bin/", "/sbin/", "/usr/bin/", "/usr/sbin/", "/usr/local/bin/"};

bool isBlank(char character) {
    return character == ' ' || character == '\t';
}

bool endsWord(char character) {
    return isBlank(character) || separators.find(character) != std::string_view::npos || character == '<' ||
           character == '>';
}

/// `text` as it must be written inside these quotes to stand for itself.
std::string quoted(const std::string &text, Quote quote) {
    std::string result;
    for (const char character : text) {
        const bool plain = std::isalnum(static_cast<unsigned char>(character)) ||
                           std::string_view("/._-+,:@%").find(character) != std::string_view::npos;
        if (quote == Quote::single)
            result += character == '\'' ? std::string("'\\''") : std::string(1, character);
        else if (quote == Quote::twice)
            result += std::string_view("\\\"$`").find(character) != std::string_view::npos
                          ? std::string{'\\', character}
                          : std::string(1, character);
        else
            result += plain || (character & 0x80) ? std::string(1, character) : std::string{'\\', character};
    }
    return result;
}

/// Whether a path component may match "..".
bool climbs(std::string_view component) {
    return component == ".." ||
           (component.starts_with('.') && component.find_first_of("*?[") != std::string_view::npos);
}

class Confinement {
public:
    Confinement(const std::string &command, const std::string &folder)
        : m_command(command), m_folder(folder) {}

    std::optional<std::string> run() {
        while (m_at < m_command.size()) {
            if (endsWord(m_command[m_at])) {
                if (!takeSeparator())
                    return std::nullopt;
            } else if (!takeWord()) {
                return std::nullopt;
            }
        }
        return m_result;
    }

private:
    bool takeSeparator() {
        const char character = m_command[m_at];
        if (m_command.compare(m_at, 2, "<<") == 0)
            return false;
        if (separators.find(character) != std::string_view::npos)
            m_commandComes = true;
        if (character == '<' || character == '>')
            m_redirects = true;
        m_result += character;
        ++m_at;
        return true;
    }

    bool takeWord() {
        std::string word;
        const std::size_t start = m_result.size();
        Quote quote = Quote::none;
        m_insertAt = std::string::npos;
        while (m_at < m_command.size() && (quote != Quote::none || !endsWord(m_command[m_at]))) {
            if (!takeCharacter(word, quote))
                return false;
        }
        return quote == Quote::none && isConfined(word) && place(word, start);
    }

    bool takeCharacter(std::string &word, Quote &quote) {
        const char character = m_command[m_at++];
        if (isQuote(character, quote)) {
            quote = quote == Quote::none ? (character == '\'' ? Quote::single : Quote::twice) : Quote::none;
            m_result += character;
            return true;
        }
        if (quote != Quote::single && (character == '$' || character == '`'))
            return false;
        if (quote == Quote::none && character == '~' && (mayBeginPath(word) || word.back() == ':'))
            return false;
        if (character == '/' && mayBeginPath(word)) {
            if (m_insertAt != std::string::npos)
                return false;
            m_insertAt = m_result.size();
            m_insertQuote = quote;
            m_pathStart = word.size();
        }
        m_result += character;
        if (character == '\\' && quote != Quote::single) {
            if (m_at == m_command.size() || m_command[m_at] == '\n' ||
                (m_command[m_at] == '/' && mayBeginPath(word)))
                return false;
            m_result += m_command[m_at];
            word += m_command[m_at++];
            return true;
        }
        word += character;
        return true;
    }

    static bool mayBeginPath(const std::string &word) { return word.empty() || word.back() == '='; }

    static bool isQuote(char character, Quote quote) {
        return (character == '\'' && quote != Quote::twice) || (character == '"' && quote != Quote::single);
    }

    [[nodiscard]] bool isConfined(const std::string &word) const {
        std::string_view rest = word;
        while (!rest.empty()) {
            const std::size_t slash = std::min(rest.find_first_of("/="), rest.size());
            if (climbs(rest.substr(0, slash)))
                return false;
            rest.remove_prefix(std::min(slash + 1, rest.size()));
        }
        return !hasHiddenPath(word);
    }

    // A path that another program would take out of the word: behind a blank in quotes, or behind an option's
    // letter.
    [[nodiscard]] bool hasHiddenPath(const std::string &word) const {
        if (m_insertAt == std::string::npos && word.starts_with('-') && word.find('/') != std::string::npos)
            return true;
        for (std::size_t i = 1; i < word.size(); ++i) {
            const bool opens = isBlank(word[i - 1]) ||
                               std::string_view(";|&()\n<>'\"`").find(word[i - 1]) != std::string_view::npos;
            if (word[i] == '/' && opens)
                return true;
        }
        return false;
    }

    bool place(const std::string &word, std::size_t start) {
        const bool isCommand = m_commandComes && !m_redirects;
        const bool isAssignment = word.find('=') < word.find('/');
        m_commandComes = m_commandComes && (m_redirects || isAssignment);
        m_redirects = false;
        if (m_insertAt == std::string::npos)
            return true;
        const std::string path = word.substr(m_pathStart);
        if (path == "/dev/null")
            return true;
        if (isCommand && !isAssignment && isOfTheSystem(path))
            m_result.replace(start, std::string::npos, quoted(path.substr(path.rfind('/') + 1), Quote::none));
        else
            m_result.insert(m_insertAt, quoted(m_folder, m_insertQuote));
        return true;
    }

    [[nodiscard]] bool isOfTheSystem(const std::string &path) const {
        const std::string folder = path.substr(0, path.rfind('/') + 1);
        return std::find(systemFolders.begin(), systemFolders.end(), folder) != systemFolders.end() &&
               access((m_folder + path).c_str(), X_OK) != 0;
    }

    const std::string &m_command;
    const std::string &m_folder;
    std::string m_result;
    std::size_t m_at = 0;
    bool m_commandComes = true;
    bool m_redirects = false;
    std::size_t m_insertAt = 0;  ///< in the result; where the word's absolute path begins
    std::size_t m_pathStart = 0; ///< the same place in the word without its quotes
    Quote m_insertQuote = Quote::none;
};

} // namespace

std::optional<std::string> confinedCommand(const std::string &command, const std::string &folder) {
    return Confinement(command, folder).run();
}

} // namespace host

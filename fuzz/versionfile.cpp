// Reads anything as a version file; of plain characters, a second reader must find the same.

#include "update/versionfile.h"

#include <QByteArray>
#include <QString>

#include <climits>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <vector>

namespace {

constexpr qint64 ownNumber = 1003003;
const std::string plainCharacters = "0123456789.#: \nmandtorywi";

std::vector<std::string> cut(const std::string& text, char separator)
{
    std::vector<std::string> pieces(1);
    for (const char character : text) {
        if (character == separator)
            pieces.emplace_back();
        else
            pieces.back() += character;
    }
    return pieces;
}

long long number(const std::string& digits)
{
    long long value = 0;
    for (const char digit : digits) {
        if (digit < '0' || digit > '9' || (value = value * 10 + (digit - '0')) > INT_MAX)
            return 0;
    }
    return value;
}

std::string addressIn(const std::vector<std::string>& tokens)
{
    std::string address;
    for (const std::string& token : tokens) {
        if (token.rfind("win32:", 0) == 0)
            address = token.substr(6);
    }
    return address;
}

struct Expected
{
    std::string version;
    std::string url;
    bool mandatory = false;
};

/// An empty version if there is nothing newer.
Expected expectedOf(const std::string& file)
{
    Expected expected;
    std::vector<std::string> lines = cut(file, '\n');
    if (lines.back().empty()) // behind the last end of a line
        lines.pop_back();
    for (const std::string& line : lines) {
        const std::vector<std::string> tokens = cut(line, ' ');
        if (tokens.front().find('#') != std::string::npos)
            continue;
        const std::vector<std::string> parts = cut(tokens.front(), '.');
        if (parts.size() != 3)
            return {};
        if (number(parts[0]) * 1000000 + number(parts[1]) * 1000 + number(parts[2]) <= ownNumber)
            return expected;
        if (expected.version.empty())
            expected = {tokens.front(), tokens.size() > 1 ? addressIn(tokens) : std::string()};
        for (const std::string& token : tokens)
            expected.mandatory |= token == "mandatory";
    }
    return expected;
}

void readPlain(std::string text)
{
    for (char& character : text) {
        if (plainCharacters.find(character) == std::string::npos)
            character = '.';
    }
    const VersionNews news = readVersionFile(QByteArray::fromStdString(text), ownNumber);
    const Expected expected = expectedOf(text);
    if (news.version.toStdString() != expected.version || news.url.toStdString() != expected.url ||
        news.mandatory != expected.mandatory || news.found == expected.version.empty())
        std::abort();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QByteArray file(reinterpret_cast<const char*>(data), static_cast<int>(size));
    readVersionFile(file, ownNumber);
    readPlain(file.toStdString());
    return 0;
}

// What a text and its translation have in common.

#include "translationcheck.h"

#include <QRegularExpression>

#include <algorithm>

namespace {

/// All that matches, in the order of the alphabet: a translation may have it in another order.
QStringList matches(const QString& text, const char* pattern)
{
    QStringList found;
    auto match = QRegularExpression(QLatin1String(pattern)).globalMatch(text);
    while (match.hasNext())
        found << match.next().captured();
    found.sort();
    return found;
}

struct Part
{
    const char* name;
    const char* pattern;
};

/// "&&" is no key but a "&" that shows, and "&amp;" is one in a rich text.
constexpr Part sharedParts[] = {
    {"placeholders", "%L?\\d+|%n"}, {"tags", "<[^>]*>"},
    {"line breaks", "\n"},          {"blanks at the beginning", "^\\s*"},
    {"blanks at the end", "\\s*$"},
};
constexpr auto keyPattern = "(?<!&)(?:&&)*&(?!&|\\w+;)";

bool hasLetter(const QString& text)
{
    return std::any_of(text.cbegin(), text.cend(), [](QChar letter) { return letter.isLetter(); });
}

} // namespace

QString translationComplaint(const QString& source, const QString& translation, const QStringList& allowed)
{
    if (translation.isEmpty())
        return QStringLiteral("empty");
    for (const Part& part : sharedParts) {
        if (matches(source, part.pattern) != matches(translation, part.pattern))
            return QStringLiteral("other %1").arg(QLatin1String(part.name));
    }
    if (matches(source, keyPattern).size() != matches(translation, keyPattern).size())
        return QStringLiteral("other keys");
    if (source == translation && hasLetter(source) && !allowed.contains(source.trimmed()))
        return QStringLiteral("English");
    return {};
}

// The transliteration of texts that the logger prints on its reports.

#include "app/devicetext.h"

#include <QString>
#include <QStringView>

namespace {

struct Replacement
{
    QStringView letters;
    const char* plain;
};

// Four rows go their own way on purpose: a sharp s is a single "s", the small eth is an "o" while the capital
// one is a "D", the yen sign is a "Y" and the micro sign a "u".
constexpr Replacement replacements[] = {
    {u"Š", "S"},    {u"Œ", "OE"},     {u"Ž", "Z"},      {u"š", "s"},      {u"œ", "oe"},   {u"ž", "z"},
    {u"Ÿ¥", "Y"},   {u"µ", "u"},      {u"ÀÁÂÃÄÅ", "A"}, {u"Æ", "AE"},     {u"Ç", "C"},    {u"ÈÉÊË", "E"},
    {u"ÌÍÎÏ", "I"}, {u"Ð", "D"},      {u"Ñ", "N"},      {u"ÒÓÔÕÖØ", "O"}, {u"ÙÚÛÜ", "U"}, {u"Ý", "Y"},
    {u"ß", "s"},    {u"àáâãäå", "a"}, {u"æ", "ae"},     {u"ç", "c"},      {u"èéêë", "e"}, {u"ìíîï", "i"},
    {u"ð", "o"},    {u"ñ", "n"},      {u"òóôõöø", "o"}, {u"ùúûü", "u"},   {u"ýÿ", "y"},
};

void appendPlain(QString* result, QChar letter)
{
    for (const Replacement& replacement : replacements) {
        if (replacement.letters.contains(letter)) {
            *result += QLatin1String(replacement.plain);
            return;
        }
    }
    *result += letter;
}

} // namespace

QString transliterated(const QString& text)
{
    QString result;
    for (const QChar letter : text)
        appendPlain(&result, letter);
    return result;
}

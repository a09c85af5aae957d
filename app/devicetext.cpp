// The transliteration of texts that the logger prints on its reports.

#include "app/devicetext.h"

#include <QString>
#include <QStringView>

namespace {

struct Replacement
{
    QStringView letters;
    QLatin1String plain;
};

// Four rows go their own way on purpose: a sharp s is a single "s", the small eth is an "o" while the capital
// one is a "D", the yen sign is a "Y" and the micro sign a "u".
constexpr Replacement replacements[] = {
    {u"Š", QLatin1String("S", 1)},      {u"Œ", QLatin1String("OE", 2)},
    {u"Ž", QLatin1String("Z", 1)},      {u"š", QLatin1String("s", 1)},
    {u"œ", QLatin1String("oe", 2)},     {u"ž", QLatin1String("z", 1)},
    {u"Ÿ¥", QLatin1String("Y", 1)},     {u"µ", QLatin1String("u", 1)},
    {u"ÀÁÂÃÄÅ", QLatin1String("A", 1)}, {u"Æ", QLatin1String("AE", 2)},
    {u"Ç", QLatin1String("C", 1)},      {u"ÈÉÊË", QLatin1String("E", 1)},
    {u"ÌÍÎÏ", QLatin1String("I", 1)},   {u"Ð", QLatin1String("D", 1)},
    {u"Ñ", QLatin1String("N", 1)},      {u"ÒÓÔÕÖØ", QLatin1String("O", 1)},
    {u"ÙÚÛÜ", QLatin1String("U", 1)},   {u"Ý", QLatin1String("Y", 1)},
    {u"ß", QLatin1String("s", 1)},      {u"àáâãäå", QLatin1String("a", 1)},
    {u"æ", QLatin1String("ae", 2)},     {u"ç", QLatin1String("c", 1)},
    {u"èéêë", QLatin1String("e", 1)},   {u"ìíîï", QLatin1String("i", 1)},
    {u"ð", QLatin1String("o", 1)},      {u"ñ", QLatin1String("n", 1)},
    {u"òóôõöø", QLatin1String("o", 1)}, {u"ùúûü", QLatin1String("u", 1)},
    {u"ýÿ", QLatin1String("y", 1)},
};

void appendPlain(QString* result, QChar letter)
{
    for (const Replacement& replacement : replacements) {
        if (replacement.letters.contains(letter)) {
            *result += replacement.plain;
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

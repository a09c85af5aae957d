#pragma once

#include <QCoreApplication>
#include <QString>
#include <QTranslator>

/// Marks every text that comes from the window's own context, as long as it lives.
class MarkingTranslator : public QTranslator
{
public:
    MarkingTranslator() { QCoreApplication::installTranslator(this); }
    ~MarkingTranslator() override { QCoreApplication::removeTranslator(this); }
    bool isEmpty() const override { return false; }
    QString translate(const char* context, const char* text, const char*, int) const override
    {
        return qstrcmp(context, "MainWindow") == 0 ? marked(QString::fromUtf8(text)) : QString();
    }
    static QString marked(const QString& text)
    {
        return text.isEmpty() ? text : QLatin1Char('<') + text + QLatin1Char('>');
    }
};

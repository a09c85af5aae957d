// The setup panel in an operator's hands.

#include "setuppanel.h"

#include "support/windowrig.h"

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QSpinBox>
#include <QTest>

QString Panel::choice(const char* combo) const
{
    return rig.find<QComboBox>(combo)->currentText();
}

void Panel::choose(const char* combo, const QString& entry) const
{
    rig.find<QComboBox>(combo)->setCurrentText(entry);
}

int Panel::minutes(const char* spin) const
{
    return rig.find<QSpinBox>(spin)->value();
}

void Panel::type(const char* spin, double number) const
{
    auto* box = rig.find<QAbstractSpinBox>(spin);
    box->selectAll();
    QTest::keyClicks(box, box->locale().toString(number));
    QTest::keyClick(box, Qt::Key_Return);
}

QString Panel::range() const
{
    const auto shown = [this](const char* spin) {
        const auto* box = rig.find<QDoubleSpinBox>(spin);
        return QString::number(box->value()) + QLatin1String(box->isEnabled() ? "*" : "");
    };
    return QStringLiteral("%1 to %2").arg(shown("spindTempMin"), shown("spindTempMax"));
}

QByteArray Panel::written(const QByteArray& command) const
{
    rig.logger->clearExchanges();
    rig.press("buttonWrite");
    for (const QByteArray& each : rig.wire()) {
        if (each.startsWith(command))
            return each;
    }
    return "nothing";
}

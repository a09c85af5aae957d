// One setup for many loggers: saved from the first, loaded for the others.

#include "presetwalk.h"

#include "support/filedialoghand.h"

#include <QComboBox>
#include <QDir>
#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QSpinBox>

namespace {

const QString connected = QStringLiteral("Connected to device on ttyACM0");
const QString written = QStringLiteral("Write successful");

/// Beside the folders of the walks, where the later ones find it.
QString presetFile()
{
    return QDir::cleanPath(QDir::current().filePath(QStringLiteral("../shipment.bpr")));
}

} // namespace

bool SavingWalk::doJob()
{
    pressKeys(Qt::Key_K);
    if (!check(QStringLiteral("connected"), connected))
        return false;
    find<QComboBox>("comboSampling")->setCurrentText(QStringLiteral("Custom"));
    find<QSpinBox>("spinSampling")->setValue(7);
    find<QComboBox>("comboDelay")->setCurrentText(QStringLiteral("1 hour"));
    find<QComboBox>("comboTemp")->setCurrentText(QStringLiteral("Custom"));
    find<QDoubleSpinBox>("spindTempMin")->setValue(2.5);
    find<QDoubleSpinBox>("spindTempMax")->setValue(8.25);
    typeOver(find<QLineEdit>("lineSender"), QStringLiteral("Northern Pharma"));
    typeOver(find<QLineEdit>("lineRecipient"), QStringLiteral("City Hospital"));
    typeOver(find<QLineEdit>("lineInfo"), QStringLiteral("Vaccines"));
    find<QComboBox>("comboType")->setCurrentText(QStringLiteral("Air"));
    pressKeys(Qt::Key_W);
    if (!check(QStringLiteral("written"), written))
        return false;
    const FileDialogHand hand(presetFile());
    pressKeys(Qt::Key_S);
    return check(QStringLiteral("saved"), QStringLiteral("Succesfully saved ") + presetFile());
}

bool ApplyingWalk::doJob()
{
    pressKeys(Qt::Key_K);
    if (!check(QStringLiteral("connected"), connected))
        return false;
    const FileDialogHand hand(presetFile());
    pressKeys(Qt::Key_O);
    if (!check(QStringLiteral("loaded"), QStringLiteral("Loaded ") + presetFile()))
        return false;
    pressKeys(Qt::Key_W);
    return check(QStringLiteral("written"), written);
}

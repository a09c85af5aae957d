// Answers message boxes as an operator would, and checks their words.

#include "support/dialogrobot.h"

#include "support/nextchance.h"

#include <QAbstractButton>
#include <QCoreApplication>
#include <QEvent>

namespace {

QString describe(const DialogRobot::Box& box)
{
    return QStringLiteral("[icon %1] \"%2\": \"%3\" (buttons %4, of %5)")
        .arg(box.icon)
        .arg(box.title, box.text)
        .arg(static_cast<int>(box.buttons), 0, 16)
        .arg(box.owner.isEmpty() ? QStringLiteral("nobody") : QString::fromLatin1(box.owner));
}

} // namespace

DialogRobot::DialogRobot(const char* usualOwner)
    : usualOwner(usualOwner)
{
    QCoreApplication::instance()->installEventFilter(this);
}

void DialogRobot::expectWarning(const QString& title, const QString& text, const char* owner)
{
    expect({QMessageBox::Warning, title, text, QMessageBox::Ok, ownerOr(owner)}, QMessageBox::Ok);
}

void DialogRobot::expectInformation(const QString& title, const QString& text, const char* owner)
{
    expect({QMessageBox::Information, title, text, QMessageBox::Ok, ownerOr(owner)}, QMessageBox::Ok);
}

void DialogRobot::expectChoice(const QString& title, const QString& text, QMessageBox::StandardButton answer,
                               const char* owner)
{
    expect({QMessageBox::Warning, title, text, QMessageBox::Ok | QMessageBox::Cancel, ownerOr(owner)},
           answer);
}

void DialogRobot::expectQuestion(const QString& title, const QString& text,
                                 QMessageBox::StandardButton answer)
{
    expect({QMessageBox::Question, title, text, QMessageBox::Yes | QMessageBox::No, usualOwner}, answer);
}

void DialogRobot::expectWarningQuestion(const QString& title, const QString& text,
                                        QMessageBox::StandardButton answer)
{
    expect({QMessageBox::Warning, title, text, QMessageBox::Yes | QMessageBox::No, "QFileDialog"}, answer);
}

void DialogRobot::expectPlain(const QString& title, const QString& text, QMessageBox::StandardButtons buttons,
                              QMessageBox::StandardButton answer)
{
    expect({QMessageBox::NoIcon, title, text, buttons, {}}, answer);
}

void DialogRobot::expect(const Box& box, QMessageBox::StandardButton answer)
{
    expectations.append({box, answer});
}

QString DialogRobot::problems() const
{
    QStringList all = mistakes;
    for (const Expectation& expectation : expectations)
        all << QStringLiteral("never came: ") + describe(expectation.box);
    return all.join(QLatin1Char('\n'));
}

bool DialogRobot::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Show) {
        // The box answers from its own event loop, which isn't running yet.
        if (auto* box = qobject_cast<QMessageBox*>(watched))
            atNextChance(box, [this, box] { answerBox(box); });
    }
    return QObject::eventFilter(watched, event);
}

void DialogRobot::answerBox(QMessageBox* box)
{
    const QWidget* owner = box->parentWidget();
    const Box actual{box->icon(), box->windowTitle(), box->text(), box->standardButtons(),
                     QByteArray(owner ? owner->metaObject()->className() : "")};
    seen.append(actual);
    emit sBoxOpened(actual.title);
    if (expectations.isEmpty() || !matches(expectations.constFirst().box, actual)) {
        mistakes << QStringLiteral("unexpected: ") + describe(actual);
        box->reject();
        return;
    }
    const Expectation expectation = expectations.takeFirst();
    if (box->isVisible())
        box->button(expectation.answer)->click();
}

bool DialogRobot::matches(const Box& expected, const Box& actual)
{
    return expected.icon == actual.icon && expected.title == actual.title && expected.text == actual.text &&
           expected.buttons == actual.buttons && expected.owner == actual.owner;
}

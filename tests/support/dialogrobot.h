#pragma once

#include <QList>
#include <QMessageBox>
#include <QObject>
#include <QStringList>

/// Answers the message boxes that the program opens, each as it was told beforehand, and keeps their words.
///
/// A box that was not expected, has other words, another icon or not the button that is to be pressed is a
/// problem, and so is an expected box that never comes. An unexpected box is closed, so that nothing hangs.
class DialogRobot : public QObject
{
    Q_OBJECT

public:
    struct Box
    {
        QMessageBox::Icon icon;
        QString title;
        QString text;
        QMessageBox::StandardButtons buttons;
    };

    explicit DialogRobot(QObject* parent = nullptr);

    /// The next boxes, in the order of the calls.
    void expectWarning(const QString& title, const QString& text);
    void expectInformation(const QString& title, const QString& text);
    /// A warning that can be cancelled.
    void expectChoice(const QString& title, const QString& text, QMessageBox::StandardButton answer);
    void expectQuestion(const QString& title, const QString& text, QMessageBox::StandardButton answer);
    /// A question with the icon of a warning, as the toolkit's own about a file that exists.
    void expectWarningQuestion(const QString& title, const QString& text, QMessageBox::StandardButton answer);
    /// A box without an icon.
    void expectPlain(const QString& title, const QString& text, QMessageBox::StandardButtons buttons,
                     QMessageBox::StandardButton answer);

    /// Every box that was opened so far.
    const QList<Box>& boxes() const { return seen; }
    /// What went wrong, in words; empty when exactly the expected boxes came, in their order.
    QString problems() const;

signals:
    /// A box is open, just before it is answered. One that is closed meanwhile is left at that.
    void sBoxOpened(const QString& title);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Expectation
    {
        Box box;
        QMessageBox::StandardButton answer;
    };

    void expect(const Box& box, QMessageBox::StandardButton answer);
    void answerBox(QMessageBox* box);
    static bool matches(const Box& expected, const Box& actual);

    QList<Expectation> expectations;
    QList<Box> seen;
    QStringList mistakes;
};

#pragma once

#include <QByteArray>
#include <QList>
#include <QMessageBox>
#include <QObject>
#include <QStringList>

/// Answers the message boxes that the program opens, each as it was told beforehand, and keeps their words.
///
/// A box that was not expected, has other words, another icon, another parent or not the button that is to be
/// pressed is a problem, and so is an expected box that never comes. An unexpected box is closed, so that
/// nothing hangs.
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
        QByteArray owner; ///< the class of its parent, empty without one
    };

    /// Boxes with an icon belong to a window of the class @p usualOwner unless another one is told.
    explicit DialogRobot(const char* usualOwner = "MainWindow");

    /// The next boxes, in the order of the calls.
    void expectWarning(const QString& title, const QString& text, const char* owner = nullptr);
    void expectInformation(const QString& title, const QString& text, const char* owner = nullptr);
    /// A warning that can be cancelled.
    void expectChoice(const QString& title, const QString& text, QMessageBox::StandardButton answer,
                      const char* owner = nullptr);
    void expectQuestion(const QString& title, const QString& text, QMessageBox::StandardButton answer);
    /// A question with the icon of a warning, as the toolkit's own about a file that exists.
    /// Its owner is the file dialog.
    void expectWarningQuestion(const QString& title, const QString& text, QMessageBox::StandardButton answer);
    /// A box without an icon, nor a parent.
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
    QByteArray ownerOr(const char* owner) const { return owner ? QByteArray(owner) : usualOwner; }

    const QByteArray usualOwner;
    QList<Expectation> expectations;
    QList<Box> seen;
    QStringList mistakes;
};

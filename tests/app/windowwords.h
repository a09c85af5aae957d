#pragma once

#include "support/dialogrobot.h"

/// The boxes of the device procedures, letter for letter, as things that a robot can be told to expect.
namespace WindowWords {

constexpr auto Yes = QMessageBox::Yes;
constexpr auto No = QMessageBox::No;

void expectNoDevice(DialogRobot& robot);
void expectDisconnecting(DialogRobot& robot, QMessageBox::StandardButton answer);
void expectExit(DialogRobot& robot, QMessageBox::StandardButton answer);

void expectReadQuestion(DialogRobot& robot, QMessageBox::StandardButton answer);
void expectReadFailed(DialogRobot& robot);
/// A device whose clock is off, or that has gone silent by the end of a read.
void expectInvalidDevice(DialogRobot& robot);
/// What a connect says when its read has failed.
void expectReadIncorrect(DialogRobot& robot);
/// The same behind the read's own box.
void expectConnectFailed(DialogRobot& robot);

void expectRangeNotice(DialogRobot& robot);
void expectWrongPassword(DialogRobot& robot);
/// The first of two boxes, and both.
void expectPasswordUnanswered(DialogRobot& robot);
void expectNoAnswerToPassword(DialogRobot& robot);

void expectWriteFailed(DialogRobot& robot);
void expectWriteCanceled(DialogRobot& robot);

void expectInvalidDates(DialogRobot& robot);
/// Of the advanced options, when a lost password would make the logger useless.
void expectResetCaution(DialogRobot& robot);
/// Of the advanced options, whenever a password is demanded.
void expectPasswordDisclaimer(DialogRobot& robot);

void expectStartModified(DialogRobot& robot, QMessageBox::StandardButton answer);
void expectStartConfirm(DialogRobot& robot, QMessageBox::StandardButton answer);
void expectStartDisabled(DialogRobot& robot);
void expectStartFailed(DialogRobot& robot);

void expectAbout(DialogRobot& robot);

/// The prompts for version @p version; the answer is Ok or Cancel.
void expectUpdate(DialogRobot& robot, const QString& version, QMessageBox::StandardButton answer);
void expectMandatoryUpdate(DialogRobot& robot, const QString& version, QMessageBox::StandardButton answer);

} // namespace WindowWords

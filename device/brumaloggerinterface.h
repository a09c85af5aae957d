#pragma once

#include "time/timekeeper.h"

#include <QHash>
#include <QObject>
#include <QSerialPort>
#include <QString>

/// The flags of the policies word; the bits without a name are carried along unchanged.
enum DevicePolicy {
    PolicyStartButton = 0x0001,   ///< may be started with its button
    PolicyStartSoftware = 0x0002, ///< may be started with lStartLogger()
    PolicyConfigPassw = 0x0004,   ///< configuring it needs the password
    PolicyStopButton = 0x0100,    ///< may be stopped with its button
    PolicyStopUSBAttach = 0x0200, ///< stops recording when attached to USB
    PolicyPasswOnce = 0x0400,     ///< reports need the password the first time
    PolicyPasswAlways = 0x0800,   ///< reports need the password at every connection
    PolicyResetDone = 0x2000,     ///< a Multiuse device can be reset only when stopped
};

/// The link to the logger: finds its serial port, speaks its command protocol and keeps the last values read.
///
/// Every command is one exchange: the command's bytes go out bare (UTF-8, no terminator), and whatever has
/// come in by the end of the reply wait is the reply. The wait spins the event loop and always runs to its
/// end. Operations return false when the exchange or its reply failed; nothing is retried, and nobody but the
/// log is told. A set operation is true only if the device answered "ok".
///
/// Wire units: times of the measuring setup are whole seconds, temperatures thousandths of a degree Celsius,
/// dates seconds since the Unix epoch, the zone signed seconds east of UTC, flags "1" and "0".
class BrumaloggerInterface : public QObject
{
    Q_OBJECT

public:
    explicit BrumaloggerInterface(QObject* parent = nullptr);

    /// lConnect() with the first port that has the logger's USB identity, and its result; further fitting
    /// ports are not tried.
    bool lConnectAuto();
    /// True from a successful lConnect() until lDisconnect(); a pulled plug is not noticed.
    bool lIsConnected() const { return connected; }
    /// True while an exchange waits for its reply, in which another one must not begin.
    bool lIsBusy() const { return busy; }
    /// Name of the port last tried, for messages.
    QString lPortName() const { return port->portName(); }

    /// The reply wait is 75 ms in fast mode, which is the default, and 150 ms otherwise.
    void lSetFastMode(bool fast);
    int lWaitTime() const { return waitTime; }
    /// Spins the event loop for @p msecs.
    void lWait(int msecs);

    // Parameters. Out parameters may be null unless the operation says otherwise.

    /// "i": a reply of other than three fields stores nothing and is true all the same.
    bool lGetIdentification(QString* name, QString* firmware, QString* hardware);
    /// "i": true if the device calls itself "Brumalogger USB". Stores nothing.
    bool lCheckIdentification();
    /// "e": the internal ID; may be empty.
    bool lGetSerial(QString* serial);
    /// "m": anything but "1" is a Single-use device.
    bool lGetMultiuse(bool* multiuse);
    /// "g": the figures on the device's clock, as a UTC date-time. A reply that is no number reads as 0.
    bool lGetDateTime(QDateTime* now);
    /// "Gt": degrees Celsius; neither pointer may be null.
    bool lGetTempRange(float* min, float* max);
    /// "Gs": seconds; a reply that is no number reads as 0.
    bool lGetSamplingTime(int* seconds);
    /// "Gd": seconds; a reply that is no number reads as 0.
    bool lGetStartDelay(int* seconds);
    /// "Gl": true when the device's button can't change its settings.
    bool lGetButtonLock(bool* locked);
    /// "Gz": seconds east of UTC.
    bool lGetTimeZoneOffset(int* seconds);
    /// "z": the last reset, in the computer's local time; @p date is touched only if it is known. No null.
    bool lGetLastReset(bool* known, QDateTime* date);
    /// "l". No null.
    bool lGetLowBattery(bool* low);
    /// "x": 2 is IDLE, 16 FINISHED; the other numbers have no known meaning. No null.
    bool lGetState(int* state);
    /// "o": three numbers of unknown meaning. No null.
    bool lGetValuesO(int* first, int* second, int* third);

    /// "St": degrees Celsius, cut to thousandths toward zero. Refused unless @p min + 1 is below @p max.
    bool lSetTempRange(float min, float max);
    /// "Ss": 60 to 57600 seconds, else refused.
    bool lSetSamplingTime(int seconds);
    /// "Sd": 60 to 57600 seconds, else refused.
    bool lSetStartDelay(int seconds);
    /// "Sl".
    bool lSetButtonLock(bool locked);
    /// "Sz": seconds east of UTC.
    bool lSetTimeZoneOffset(int seconds);
    /// "u": sets the device's clock to the instant of @p now, whatever its time spec; cut to 32 bits.
    bool lSetDateTime(const QDateTime& now);
    /// "u" from a local date "d/M/yyyy" and time "H:m:s".
    bool lSetDateTime(const QString& date, const QString& time);
    /// "u" from bare seconds since the epoch.
    bool lSetTimestamp(unsigned int seconds);
    /// "a": starts the logger, with four times the usual wait.
    bool lStartLogger();
    /// "k": closes the writing of the text slots; its purpose on the device is not known.
    bool lSendCommandK();
    /// "n": purpose not known.
    bool lSendCommandN();
    /// "r": purpose not known; @p value is clamped to -127 and 127.
    bool lSendCommandR(int value);

    // Texts, lock and password. Slots: 0 sender, 1 recipient, 2 information, 3 shipment type, 4 barcode.

    /// "G" and @p slot; a slot above 4 is refused. An empty text counts as read.
    bool lGetText(unsigned int slot, QString* text);
    /// "S" and @p slot and @p text, the whole command padded with blanks to @p width if that is above 0.
    bool lSetText(int slot, const QString& text, int width);
    /// "#": true when the password lock is on. No null.
    bool lGetLocked(bool* locked);
    /// "?": true when the device answered; @p accepted (no null) tells whether the password was right. The
    /// password travels in plain text and is cut to 30 characters.
    bool lTryPassword(const QString& password, bool* accepted);
    /// "!": sets the password, cut to 30 characters; it may be empty.
    bool lSetPassword(const QString& password);

    // Policies and automatic dates.

    /// "Go".
    bool lGetPolicies(int* policies);
    /// "So".
    bool lSetPolicies(quint16 policies);
    /// "Ga": @p date, the figures on the device's clock as UTC, is touched only if @p enabled. No null.
    bool lGetStartDate(bool* enabled, QDateTime* date);
    /// "Gp": like lGetStartDate().
    bool lGetStopDate(bool* enabled, QDateTime* date);
    /// "Sa": 0 on the wire when not @p enabled.
    bool lSetStartDate(bool enabled, const QDateTime& date);
    /// "Sp": like lSetStartDate().
    bool lSetStopDate(bool enabled, const QDateTime& date);

    // What was read last; none of these talks to the device.

    QString lDeviceName() const { return deviceName; }
    QString lFirmwareVersion() const { return firmwareVersion; }
    QString lHardwareRevision() const { return hardwareRevision; }
    float lTempMin() const { return tempMin; }
    float lTempMax() const { return tempMax; }
    int lSamplingTime() const { return samplingTime; }
    int lStartDelay() const { return startDelay; }
    int lTimeZoneOffset() const { return timeZoneOffset; }
    int lTimestamp() const { return timestamp; }
    bool lButtonLock() const { return buttonLock; }
    bool lMultiuse() const { return multiuse; }
    /// The device's clock, running on since the last lGetDateTime().
    QDateTime lDeviceDateTime() const { return deviceClock.time(); }
    /// Major * 1000000 + minor * 1000 + patch, or 0 unless the version has three parts.
    int lFirmwareCode() const;
    /// Firmware 1.2.0 or later: password lock, policies, time zone and automatic dates exist.
    bool lIsExtendedFirmware() const;
    /// Asks "m" and judges the clock last read: a Single-use device more than two days from @p reference is
    /// not valid, its battery was out. Nor is one that doesn't answer.
    bool lIsDeviceValid(const QDateTime& reference);

public slots:
    /// Opens the port at 115200 baud and proves the device with "i". A failed proof leaves the port open; an
    /// open port is taken as it is and gives true.
    bool lConnect(const QString& portName);
    void lDisconnect();

private slots:
    void plOnTimeUpdate();

private:
    // Exchange
    bool plExchange(const QString& command, int waitMs = -1);
    bool plExchangeForReply(const QString& command);
    bool plExchangeForNumber(const QString& command, int* number);
    bool plExchangeForOk(const QString& command, int waitMs = -1);
    bool plWriteRaw(const QByteArray& bytes);
    void plOnReadyRead();
    void plOnPortError(QSerialPort::SerialPortError error);
    void plStopAsking();

    // Shared by operations that differ in the command alone
    bool plGetSeconds(const QString& command, int* field, int* seconds);
    bool plSetSeconds(const char* command, int seconds);
    bool plSendTimestamp(qint32 seconds);
    bool plGetDate(const QString& command, bool* enabled, QDateTime* date);
    bool plSetDate(const char* command, bool enabled, const QDateTime& date);

    QSerialPort* port;
    QString defaultPortName;
    QString reply;
    bool connected = false;
    bool replyReady = false;
    QHash<unsigned int, QString> texts;
    QString deviceName;
    QString firmwareVersion;
    QString hardwareRevision;
    QString serialNumber;
    float tempMin = 0;
    float tempMax = 0;
    int samplingTime = 0;
    int startDelay = 0;
    int timeZoneOffset = 0;
    int timestamp = 0;
    int policies = 0;
    bool buttonLock = false;
    bool multiuse = false;
    TimeKeeper deviceClock;
    int waitTime;
    bool fastMode = true;
    bool busy = false;
};

#pragma once

#include <QObject>
#include <QString>

class FileDownloader;

/// Asks the maker's web server whether there is a newer version of the program.
///
/// Quiet by design: whatever goes wrong, there is no signal, no message and no second try.
class UpdateChecker : public QObject
{
    Q_OBJECT

public:
    /// For a program of version @p major.@p minor.@p patch.
    UpdateChecker(int major, int minor, int patch, QObject* parent);

    /// Fetches the version file; meant to be called once.
    void check();

signals:
    /// There is version @p ver at @p url, which is empty if the file names no place for this platform.
    void sUpdateAvailable(QString ver, QString url);
    /// The same, and the program should not go on without it.
    void sUpdateMandatory(QString ver, QString url);

public slots:
    /// Reads what was downloaded and emits one signal at most.
    void lParseFile();

private:
    FileDownloader* downloader = nullptr;
    int major;
    int minor;
    int patch;
    int versionNumber;
};

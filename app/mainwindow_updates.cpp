// The boxes that tell the program's own version: About, and the prompts for a newer one.

#include "app/mainwindow.h"

#include "update/makerweb.h"

#include <QDesktopServices>
#include <QUrl>

namespace {

constexpr auto creditAndLinks = "<p></p><p></p>Made by Polar Ridge Works: <a href=\"http://%1\">%1</a>"
                                "<p>The USB driver is installed with wdi-simple, a tool of <a "
                                "href=\"https://github.com/pbatard/libwdi\">libwdi</a>.</p></center>";

} // namespace

void MainWindow::plShowAbout()
{
    const QString version = QStringLiteral("%1.%2.%3").arg(versionMajor).arg(versionMinor).arg(versionPatch);
    const QString text =
        QStringLiteral("<img src=\":/logo_prw_nobg.png\" width=300><I></I><center>Brumalogger "
                       "Configuration Tool v") +
        version + QString::fromLatin1(creditAndLinks).arg(QLatin1String(makerHost));
    QMessageBox(QMessageBox::NoIcon, tr("About Brumalogger Configuration Tool"), text, QMessageBox::Ok)
        .exec();
}

// A prompt comes whenever the version file does, also in the middle of a procedure, which goes on behind it.
bool MainWindow::plPrompt(const QString& title, const QString& text, const QString& version,
                          const QString& url)
{
    if (closed)
        return false;
    QMessageBox box(QMessageBox::NoIcon, title,
                    text.arg(version, QString::number(versionMajor), QString::number(versionMinor),
                             QString::number(versionPatch)),
                    QMessageBox::Ok | QMessageBox::Cancel);
    if (box.exec() == QMessageBox::Ok)
        QDesktopServices::openUrl(QUrl(url.isEmpty() ? fallbackDownloadUrl : url));
    return !closed;
}

void MainWindow::lUpdateAvailable(const QString& v, const QString& u)
{
    plPrompt(tr("Update Available"),
             tr("Brumalogger Configuration Tool v%1 is available for download.<p></p>Updating your current "
                "version (v%2.%3.%4) is recommended.<p></p>Click Ok to download it.</center>"),
             v, u);
}

// The close asks for unwritten changes, and a No there keeps the window.
void MainWindow::lUpdateMandatory(const QString& v, const QString& u)
{
    if (plPrompt(tr("Update Required"),
                 tr("Brumalogger Configuration Tool v%1 is available for download.<p></p>Updating your "
                    "current version (v%2.%3.%4) is mandatory.<p></p>This version contains important "
                    "changes, so the update <font color='red'>must</font> be performed.<p></p>Click Ok to "
                    "download it, or Cancel to quit the application.</center>"),
                 v, u))
        close();
}

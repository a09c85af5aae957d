#pragma once

#include "dialogs/languagetable.h"

#include <QDialog>
#include <QStringList>

class PresetStorage;

namespace Ui {
class SettingsDialog;
}

/// The dialog of the application's settings, and the store of their current values: what its widgets show is
/// in force.
///
/// The configuration file has the format of preset files. It is read at every opening, and written when the
/// dialog is accepted and when the program ends. Nothing restores the widgets on Cancel.
class SettingsDialog : public QDialog
{
    Q_OBJECT

public:
    /// The size of @p parent, the main window, is saved along with the settings.
    explicit SettingsDialog(QWidget* parent);
    ~SettingsDialog() override;

    /// Without a path nothing is read.
    void setConfigPath(const QString& path);
    /// False, and the widgets left alone, if the file can't be read. In a file that can be read, a missing
    /// key turns time configuration off, and the pool on.
    bool loadSettings();
    /// Writes the settings and the window's size. Failures aren't reported.
    void saveSettings();
    /// Fills the list of languages, in the order of their keys.
    void setLanguages(const LanguageTable& table);

    /// The default preset can be used.
    bool presetEnabled() const;
    /// As it was chosen or stored; may be empty or lead nowhere.
    QString presetPath() const;
    /// Time configuration is on.
    bool timeEnabled() const;
    /// The reference time comes from all servers rather than from the chosen one.
    bool poolEnabled() const;
    /// Fast read and write is on.
    bool fastEnabled() const;
    /// In points.
    int fontSize() const;
    /// Host name of the chosen server.
    QString timeServer() const;
    /// All servers as they are displayed. The first row, with its remark in parentheses, is no host name and
    /// never resolves; the pool counts it all the same.
    QStringList serverListForPool() const;
    /// Size of the main window when the settings were saved last, in pixels; 0 by 0 if that is unknown.
    QSize savedWindowSize() const;

protected:
    void showEvent(QShowEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private slots:
    void plOpenPreset();
    /// Keeps the choice for the next start of the program and says so, in the chosen language.
    void plProcessLanguageChoice(int selectedLangIndex);

private:
    void plSetUpFontSize();
    void plConnectSignals();
    void plAccept();
    void plOnDisableTimeToggled(bool disabled);
    void plEnableServerChoice(bool enabled);
    void plLoadServer();
    void plLoadLanguage();

    Ui::SettingsDialog* ui;
    PresetStorage* storage;
    QWidget* mainWindow;
    QString configPath;
    QStringList serverList;
    LanguageTable languages;
    bool loading = false;
};

#pragma once

#include <QDialog>
#include <QString>

class PresetStorage;

namespace Ui {
class GuideDialog;
}

/// The Quickstart guide, a window beside the main one: a page of the program's resources, in the language of
/// the configuration as it was when the dialog was built. Each showing reads the page anew and begins at its
/// top.
class GuideDialog : public QDialog
{
    Q_OBJECT

public:
    explicit GuideDialog(QWidget* parent);
    ~GuideDialog() override;

public slots:
    /// Shows the HTML page @p filename, as far as its first NUL. Without such a file the browser is empty.
    void lReadTextFromFile(const QString& filename);

protected:
    void showEvent(QShowEvent* event) override;

private:
    Ui::GuideDialog* ui;
    PresetStorage* storage;
    QString pageText;
};

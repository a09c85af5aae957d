// The Quickstart guide: which page it is, and its showing.

#include "dialogs/guidedialog.h"

#include "dialogs/configuration.h"
#include "presets/presetstorage.h"
#include "ui_guidedialog.h"

#include <QFile>
#include <QShowEvent>

namespace {

struct Page
{
    const char* language;
    const char* path;
};

/// There are no pages in German and French.
constexpr Page translatedPages[] = {
    {"it_ch", ":/pages/guide/it/guide.html"},
    {"pt_br", ":/pages/guide/pt_br/guide.html"},
    {"es_es", ":/pages/guide/es/guide.html"},
};
constexpr auto englishPage = ":/pages/guide/en/guide.html";

QString pageFor(const QString& language)
{
    for (const Page& page : translatedPages) {
        if (language == QLatin1String(page.language))
            return QLatin1String(page.path);
    }
    return QLatin1String(englishPage);
}

} // namespace

GuideDialog::GuideDialog(QWidget* parent)
    : QDialog(parent)
    , ui(new Ui::GuideDialog)
{
    ui->setupUi(this);
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    ui->textBrowser->setOpenExternalLinks(true);
    storage = new PresetStorage(this);
    storage->load(QLatin1String(Configuration::file)); // without it the guide is in English
}

GuideDialog::~GuideDialog()
{
    delete ui;
}

// Coming back from being minimised is no opening: the reader finds the place again.
void GuideDialog::showEvent(QShowEvent* event)
{
    if (!event->spontaneous())
        lReadTextFromFile(pageFor(storage->value(QLatin1String(Configuration::languageKey))));
    QDialog::showEvent(event);
}

void GuideDialog::lReadTextFromFile(const QString& filename)
{
    ui->textBrowser->clear();
    pageText.clear();
    QFile file(filename);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return;
    const QByteArray bytes = file.readAll();
    pageText = QString::fromUtf8(bytes.constData()); // up to the first NUL
    ui->textBrowser->setText(pageText);
}

// The list of languages, and what a choice in it does.

#include "settingsdesk.h"

#include "app/languages.h"

#include <QComboBox>
#include <QTest>

namespace {

QStringList items(const QComboBox* combo)
{
    QStringList all;
    for (int row = 0; row < combo->count(); row++)
        all << QStringLiteral("%1 = %2").arg(combo->itemData(row).toString(), combo->itemText(row));
    return all;
}

Settings settingsOf(const char* language)
{
    return {{QStringLiteral("language"), QLatin1String(language)}};
}

} // namespace

class TestSettingsDialogLanguages : public QObject
{
    Q_OBJECT

private slots:
    void listIsInTheOrderOfTheKeys();
    void listIsReplaced();
    void fillingSaysNothing();
    void readsLanguage_data();
    void readsLanguage();
    void missingLanguageLeavesTheSelection();
    void choiceByHandIsAnsweredInItsLanguage_data();
    void choiceByHandIsAnsweredInItsLanguage();
    void choiceIsNotWrittenYet();
    void cancelledChoiceReachesTheFileAtTheEnd();
    void anotherOpeningForgetsTheChoice();
    void anotherOpeningKeepsTheChoiceIfTheFileHasNone();

private:
    static void chooseByHand(SettingsDesk& desk, const char* language);
    static void openAndChooseFrench(SettingsDesk& desk);
};

void TestSettingsDialogLanguages::chooseByHand(SettingsDesk& desk, const char* language)
{
    auto* combo = desk.find<QComboBox>("comboLanguage");
    combo->setCurrentIndex(combo->findData(QLatin1String(language)));
}

void TestSettingsDialogLanguages::openAndChooseFrench(SettingsDesk& desk)
{
    desk.dialog.setLanguages(languageTable());
    desk.open();
    desk.robot.expectInformation(
        QStringLiteral("Information"),
        QStringLiteral(
            "Veuillez cliquer sur OK et redémarrer l'application pour que ces paramètres prennent effet."));
    chooseByHand(desk, "fr_fr");
}

void TestSettingsDialogLanguages::listIsInTheOrderOfTheKeys()
{
    SettingsDesk desk;
    desk.dialog.setLanguages(languageTable());
    QCOMPARE(items(desk.find<QComboBox>("comboLanguage")),
             QStringList({"de_de = Deutsch (DE)", "en_us = English (US)", "es_es = Español (ES)",
                          "fr_fr = Français (FR)", "it_ch = Italiano (IT)", "pt_br = Português (BR)"}));
}

void TestSettingsDialogLanguages::listIsReplaced()
{
    SettingsDesk desk;
    desk.dialog.setLanguages(languageTable());
    desk.dialog.setLanguages(
        {{QStringLiteral("en_us"), {QStringLiteral("English (US)"), QStringLiteral("en")}}});
    QCOMPARE(items(desk.find<QComboBox>("comboLanguage")), QStringList("en_us = English (US)"));
}

void TestSettingsDialogLanguages::fillingSaysNothing()
{
    SettingsDesk desk(settingsOf("it_ch"));
    desk.dialog.setLanguages(languageTable());
    desk.dialog.loadSettings();
    desk.dialog.setLanguages(languageTable());
    desk.open(); // reads the file once more, now visible
    QCOMPARE(desk.find<QComboBox>("comboLanguage")->currentData().toString(), QStringLiteral("it_ch"));
    QCOMPARE(desk.robot.problems(), QString());
}

void TestSettingsDialogLanguages::readsLanguage_data()
{
    QTest::addColumn<QString>("expected");
    QTest::newRow("pt_br") << "pt_br";
    QTest::newRow("en_us") << "en_us";
    QTest::newRow("EN_US") << "fr_fr"; // no row: the selection stays
    QTest::newRow("xx_yy") << "fr_fr";
    QTest::newRow("") << "fr_fr";
}

void TestSettingsDialogLanguages::readsLanguage()
{
    SettingsDesk desk(settingsOf(QTest::currentDataTag()));
    desk.dialog.setLanguages(languageTable());
    chooseByHand(desk, "fr_fr");
    QVERIFY(desk.dialog.loadSettings());
    QTEST(desk.find<QComboBox>("comboLanguage")->currentData().toString(), "expected");
}

void TestSettingsDialogLanguages::missingLanguageLeavesTheSelection()
{
    SettingsDesk desk({{QStringLiteral("fontsize"), QStringLiteral("12")}});
    desk.dialog.setLanguages(languageTable());
    chooseByHand(desk, "fr_fr");
    QVERIFY(desk.dialog.loadSettings());
    QCOMPARE(desk.find<QComboBox>("comboLanguage")->currentData().toString(), QStringLiteral("fr_fr"));
}

void TestSettingsDialogLanguages::choiceByHandIsAnsweredInItsLanguage_data()
{
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("text");
    QTest::newRow("pt_br")
        << "Informação"
        << "Clique em OK e reinicie a aplicação para que as configurações de idioma tenham efeito.";
    QTest::newRow("it_ch")
        << "Informazione"
        << "Premere OK e fare ripartire il sistema per implementare le nuove impostazioni.";
    QTest::newRow("de_de")
        << "Information"
        << "Bestätigen Sie mit OK und starten Sie die Anwendung erneut um diese Einstellungen zu aktivieren.";
    QTest::newRow("es_es")
        << "Información"
        << "Haga clic en OK y reinicie la aplicación para que esta configuración surta efecto.";
    QTest::newRow("fr_fr")
        << "Information"
        << "Veuillez cliquer sur OK et redémarrer l'application pour que ces paramètres prennent effet.";
    QTest::newRow("en_us")
        << "Information"
        << "Please click OK and restart the application for these settings to take effect.";
    QTest::newRow("xx_yy") // of which there are no words
        << "Information"
        << "Please click OK and restart the application for these settings to take effect.";
}

void TestSettingsDialogLanguages::choiceByHandIsAnsweredInItsLanguage()
{
    QFETCH(QString, title);
    QFETCH(QString, text);
    const QByteArray language = QTest::currentDataTag();
    SettingsDesk desk(settingsOf(language == "en_us" ? "de_de" : "en_us"));
    LanguageTable languages = languageTable();
    languages.insert(QStringLiteral("xx_yy"), {QStringLiteral("Elsewhere"), QStringLiteral("xx")});
    desk.dialog.setLanguages(languages);
    desk.dialog.loadSettings();
    if (language == "de_de")
        chooseByHand(desk, "en_us");
    desk.open();
    desk.robot.expectInformation(title, text);
    chooseByHand(desk, language);
    QCOMPARE(desk.robot.problems(), QString());
    desk.dialog.accept();
    QCOMPARE(WorkFolder::configuration().value(QStringLiteral("language")), QString(language));
}

void TestSettingsDialogLanguages::choiceIsNotWrittenYet()
{
    SettingsDesk desk(settingsOf("en_us"));
    openAndChooseFrench(desk);
    QCOMPARE(WorkFolder::configuration().value(QStringLiteral("language")), QStringLiteral("en_us"));
    QCOMPARE(desk.robot.problems(), QString());
}

void TestSettingsDialogLanguages::cancelledChoiceReachesTheFileAtTheEnd()
{
    SettingsDesk desk(settingsOf("en_us"));
    openAndChooseFrench(desk);
    desk.dialog.reject();
    desk.dialog.saveSettings();
    QCOMPARE(WorkFolder::configuration().value(QStringLiteral("language")), QStringLiteral("fr_fr"));
    QCOMPARE(desk.robot.problems(), QString());
}

void TestSettingsDialogLanguages::anotherOpeningForgetsTheChoice()
{
    SettingsDesk desk(settingsOf("en_us"));
    openAndChooseFrench(desk);
    desk.dialog.reject();
    desk.open();
    desk.dialog.reject();
    desk.dialog.saveSettings();
    QCOMPARE(WorkFolder::configuration().value(QStringLiteral("language")), QStringLiteral("en_us"));
    QCOMPARE(desk.robot.problems(), QString());
}

void TestSettingsDialogLanguages::anotherOpeningKeepsTheChoiceIfTheFileHasNone()
{
    SettingsDesk desk({{QStringLiteral("fontsize"), QStringLiteral("12")}});
    openAndChooseFrench(desk);
    desk.dialog.reject();
    desk.open();
    desk.dialog.reject();
    desk.dialog.saveSettings();
    QCOMPARE(WorkFolder::configuration().value(QStringLiteral("language")), QStringLiteral("fr_fr"));
    QCOMPARE(desk.robot.problems(), QString());
}

QTEST_MAIN(TestSettingsDialogLanguages)
#include "tst_settingsdialog_languages.moc"

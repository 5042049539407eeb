// Every page in every language: the translation sources are complete, and after a language
// switch no visible text is a source key that the language translates differently.
#include "AppGlobals.h"
#include "Information_View.h"
#include "Languages.h"
#include "Lighting_View.h"
#include "Main_View.h"
#include "Noti_View.h"
#include "Setting_View.h"
#include "TestEnvironment.h"
#include "Widget_LocationPolicy.h"

#include <QtTest>

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QXmlStreamReader>

#include <cstring>
#include <map>

namespace {

// "context/source" -> translation, for one language.
using Catalogue = std::map<QString, QString>;

Catalogue readCatalogue(const QString& code, QStringList& problems)
{
    Catalogue catalogue;
    QFile file(QStringLiteral(NX_SOURCE_DIR "/app/resources/translations/NORVALEX_") + code +
               ".ts");
    if (!file.open(QIODevice::ReadOnly))
        problems << "cannot read " + file.fileName();
    QXmlStreamReader xml(&file);
    QString context, source;
    while (file.isOpen() && !xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == QLatin1String("name")) {
            context = xml.readElementText();
        } else if (xml.name() == QLatin1String("source")) {
            source = xml.readElementText();
        } else if (xml.name() == QLatin1String("translation")) {
            const bool unfinished = !xml.attributes().value("type").isEmpty();
            const QString translation = xml.readElementText();
            if (unfinished || translation.isEmpty())
                problems << code + ": no finished translation of " + context + '/' + source;
            catalogue[context + '/' + source] = translation;
        }
    }
    if (xml.hasError())
        problems << code + ": " + xml.errorString();
    return catalogue;
}

QStringList visibleTexts(QWidget* top)
{
    QStringList texts;
    for (QWidget* w : top->findChildren<QWidget*>()) {
        if (!w->isVisibleTo(top))
            continue;
        if (auto* label = qobject_cast<QLabel*>(w))
            texts << label->text();
        else if (auto* button = qobject_cast<QAbstractButton*>(w))
            texts << button->text();
        else if (auto* combo = qobject_cast<QComboBox*>(w))
            for (int i = 0; i < combo->count(); ++i)
                texts << combo->itemText(i);
    }
    texts.removeAll(QString());
    return texts;
}

HWData sampleData()
{
    HWData hw{};
    hw.memoryCount = hw.slotCount = 4;
    hw.frequency = 3200;
    hw.memoryLoad = 42.5;
    for (int i = 0; i < 4; ++i) {
        hw.slotIndex[i] = i;
        hw.memoryData[i].memoryModuleSize = 8192;
        std::strcpy(hw.memoryData[i].type, "DDR4");
    }
    return hw;
}

} // namespace

class tst_Translations : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QStandardPaths::setTestModeEnabled(true); }
    void sourcesAreCompleteInEveryLanguage();
    void everyPageSwitchesLanguageCompletely();
    void termsAgreeAcrossPages();

private:
    std::map<QString, Catalogue> m_catalogues;
};

void tst_Translations::sourcesAreCompleteInEveryLanguage()
{
    QStringList problems;
    for (int i = 0; i < Languages::kCount; ++i)
        m_catalogues[Languages::codeForIndex(i)] =
            readCatalogue(Languages::codeForIndex(i), problems);
    const Catalogue& english = m_catalogues["en"];
    QVERIFY(english.size() > 100);
    for (const auto& [code, catalogue] : m_catalogues) {
        for (const auto& entry : english)
            if (!catalogue.count(entry.first))
                problems << code + " lacks " + entry.first;
        for (const auto& entry : catalogue)
            if (!english.count(entry.first))
                problems << code + " has " + entry.first + ", English has not";
    }
    QVERIFY2(problems.isEmpty(), qPrintable(problems.join('\n')));
}

void tst_Translations::termsAgreeAcrossPages()
{
    QVERIFY(!m_catalogues.empty());
    QStringList problems;
    for (const auto& [code, c] : m_catalogues) {
        const auto tr = [&c = c](const char* key) { return c.at(QString::fromUtf8(key)); };
        // The same memory load on the Information and the Notification page.
        if (tr("Information_View/Load") != tr("Noti_View/Loading"))
            problems << code + ": load is " + tr("Information_View/Load") + " and " +
                            tr("Noti_View/Loading");
        // Every light mode and every speed has a name of its own.
        QSet<QString> names;
        int count = 0;
        for (const auto& entry : c) {
            if (entry.first.startsWith(QLatin1String("Lighting_View/")) &&
                entry.first.count(QLatin1Char('/')) == 1) {
                names.insert(entry.second.toCaseFolded());
                ++count;
            }
        }
        if (names.size() != count)
            problems << code + ": two Lighting captions read the same";
    }
    QVERIFY2(problems.isEmpty(), qPrintable(problems.join('\n')));
}

void tst_Translations::everyPageSwitchesLanguageCompletely()
{
    QVERIFY(!m_catalogues.empty());
    extendedFeatures = isNewMode = true;
    Main_View frame;
    frame.show();
    const std::pair<void (Main_View::*)(), const char*> pages[] = {
        {&Main_View::slot_show_Lighting, "Lighting"},
        {&Main_View::slot_show_Noti, "Notification"},
        {&Main_View::slot_show_Setting, "Settings"},
        {&Main_View::slot_show_Info, "Information"}};
    for (const auto& page : pages)
        (frame.*page.first)();
    Widget_LocationPolicy consent;
    QStringList problems;

    for (int index = 0; index < Languages::kCount; ++index) {
        const QString code = Languages::codeForIndex(index);
        QTranslator translator;
        QVERIFY(translator.load(Languages::fileForIndex(index)));
        QCoreApplication::installTranslator(&translator);
        currentLanguage = index;
        frame.updateLanguage_MainView();
        frame.setting_View->setSettingData(SettingData{index, true, true, false, 0});
        frame.information_View->setHWData(sampleData());
        consent.retranslate();

        QStringList texts = visibleTexts(&consent);
        for (const auto& page : pages) {
            (frame.*page.first)();
            texts << visibleTexts(&frame);
        }
        for (const QString& text : qAsConst(texts)) {
            for (const auto& [key, translation] : m_catalogues[code]) {
                const QString source = key.mid(key.indexOf('/') + 1);
                // A key shown as it stands although this language says otherwise; captions
                // ending in ':' are followed by a value.
                const bool keyShown =
                    text == source || (source.endsWith(':') && text.startsWith(source) &&
                                       !translation.startsWith(source));
                if (keyShown && translation != source)
                    problems << code + ": \"" + text + "\" (" + key + ") left untranslated";
            }
        }
        QCoreApplication::removeTranslator(&translator);
    }
    problems.removeDuplicates();
    QVERIFY2(problems.isEmpty(), qPrintable(problems.join('\n')));
}

QTEST_MAIN(tst_Translations)
#include "tst_translations.moc"

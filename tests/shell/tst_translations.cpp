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

} // namespace

class tst_Translations : public QObject
{
    Q_OBJECT

    std::map<QString, Catalogue> m_catalogues;

private slots:
    void initTestCase() { QStandardPaths::setTestModeEnabled(true); }

    // Every language has every source English has and no other; in each, the load reads the
    // same on the Information and the Notification page, and every light mode and speed has a
    // name of its own.
    void sourcesAreCompleteAndTermsAgree()
    {
        QStringList problems;
        for (int i = 0; i < Languages::kCount; ++i)
            m_catalogues[Languages::codeForIndex(i)] =
                readCatalogue(Languages::codeForIndex(i), problems);
        const Catalogue& english = m_catalogues["en"];
        QVERIFY(english.size() > 100);
        for (const auto& [code, c] : m_catalogues) {
            for (const auto& entry : english)
                if (!c.count(entry.first))
                    problems << code + " lacks " + entry.first;
            QSet<QString> names;
            int count = 0;
            for (const auto& [key, translation] : c) {
                if (!english.count(key))
                    problems << code + " has " + key + ", English has not";
                if (key.startsWith(QLatin1String("Lighting_View/")) && key.count('/') == 1) {
                    names.insert(translation.toCaseFolded());
                    ++count;
                }
            }
            if (names.size() != count)
                problems << code + ": two Lighting captions read the same";
            if (c.at("Information_View/Load") != c.at("Noti_View/Loading"))
                problems << code + ": two words for the load";
        }
        QVERIFY2(problems.isEmpty(), qPrintable(problems.join('\n')));
    }

    // After a language switch no visible text on any page or in the consent dialog is a source
    // key that the language translates differently.
    void everyPageSwitchesLanguageCompletely()
    {
        QVERIFY(!m_catalogues.empty());
        extendedFeatures = isNewMode = true;
        Main_View frame;
        frame.show();
        void (Main_View::*const pages[])() = {
            &Main_View::slot_show_Lighting, &Main_View::slot_show_Noti,
            &Main_View::slot_show_Setting, &Main_View::slot_show_Info};
        for (const auto page : pages)
            (frame.*page)();
        Widget_LocationPolicy consent;
        QStringList problems;
        HWData hw{};
        hw.memoryCount = hw.slotCount = 4;

        for (int index = 0; index < Languages::kCount; ++index) {
            const QString code = Languages::codeForIndex(index);
            QTranslator translator;
            QVERIFY(translator.load(Languages::fileForIndex(index)));
            QCoreApplication::installTranslator(&translator);
            currentLanguage = index;
            frame.updateLanguage_MainView();
            frame.setting_View->setSettingData(SettingData{index, true, true, false, 0});
            frame.information_View->setHWData(hw);
            consent.retranslate();

            QStringList texts = visibleTexts(&consent);
            for (const auto page : pages) {
                (frame.*page)();
                texts << visibleTexts(&frame);
            }
            for (const QString& text : qAsConst(texts)) {
                for (const auto& [key, translation] : m_catalogues[code]) {
                    const QString source = key.mid(key.indexOf('/') + 1);
                    // A key shown as it stands although this language says otherwise;
                    // captions ending in ':' are followed by a value.
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
};

QTEST_MAIN(tst_Translations)
#include "tst_translations.moc"

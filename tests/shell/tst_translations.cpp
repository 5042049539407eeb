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
#include <memory>

namespace {

// context -> source -> translation, for one language.
using Catalogue = std::map<QString, std::map<QString, QString>>;

struct Problems {
    QStringList list;
    void add(const QString& text) { list << text; }
};

// Reads the translation source of one language.
Catalogue readCatalogue(const QString& code, Problems& problems)
{
    Catalogue catalogue;
    const QString path =
        QStringLiteral(NX_SOURCE_DIR "/app/resources/translations/NORVALEX_") + code + ".ts";
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        problems.add("cannot read " + QFileInfo(path).fileName());
        return catalogue;
    }
    QXmlStreamReader xml(&file);
    QString context, source;
    while (!xml.atEnd()) {
        xml.readNext();
        if (!xml.isStartElement())
            continue;
        if (xml.name() == QLatin1String("name")) {
            context = xml.readElementText();
        } else if (xml.name() == QLatin1String("source")) {
            source = xml.readElementText();
        } else if (xml.name() == QLatin1String("translation")) {
            const QString type = xml.attributes().value("type").toString();
            const QString translation = xml.readElementText();
            if (!type.isEmpty() || translation.isEmpty())
                problems.add(QStringLiteral("%1: %2/%3 has no finished translation")
                                 .arg(code, context, source));
            catalogue[context][source] = translation;
        }
    }
    if (xml.hasError())
        problems.add(QFileInfo(path).fileName() + ": " + xml.errorString());
    return catalogue;
}

QStringList visibleTexts(QWidget* top)
{
    QStringList texts;
    const auto widgets = top->findChildren<QWidget*>();
    for (QWidget* w : widgets) {
        if (!w->isVisibleTo(top) && w != top)
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
    HWData hw;
    std::memset(&hw, 0, sizeof hw);
    hw.memoryCount = 4;
    hw.slotCount = 4;
    hw.frequency = 3200;
    hw.casLatency = 16;
    hw.tRCD = 18;
    hw.channel = 2;
    hw.physicalMemoryUsed = 9000;
    hw.memoryLoad = 42.5;
    for (int i = 0; i < NX_MODULE_COUNT; ++i) {
        hw.slotIndex[i] = i < 4 ? i : -1;
        hw.memoryData[i].memoryModuleSize = 8192;
        hw.memoryData[i].frequency = 3200;
        hw.memoryData[i].temperature = 38;
        std::strcpy(hw.memoryData[i].type, "DDR4");
        std::strcpy(hw.memoryData[i].modelCode, "KX44");
    }
    return hw;
}

}  // namespace

class tst_Translations : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void sourcesAreCompleteInEveryLanguage();
    void everyPageSwitchesLanguageCompletely();

private:
    std::map<QString, Catalogue> m_catalogues;
};

void tst_Translations::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
}

void tst_Translations::sourcesAreCompleteInEveryLanguage()
{
    Problems problems;
    for (int i = 0; i < Languages::kCount; ++i) {
        const QString code = Languages::codeForIndex(i);
        m_catalogues[code] = readCatalogue(code, problems);
    }
    const Catalogue& english = m_catalogues["en"];
    QVERIFY(english.size() >= 8);
    for (const auto& [code, catalogue] : m_catalogues) {
        for (const auto& [context, messages] : english) {
            const auto found = catalogue.find(context);
            for (const auto& [source, translation] : messages) {
                Q_UNUSED(translation)
                if (found == catalogue.end() || !found->second.count(source))
                    problems.add(QStringLiteral("%1 lacks %2/%3").arg(code, context, source));
            }
        }
        for (const auto& [context, messages] : catalogue)
            for (const auto& [source, translation] : messages) {
                Q_UNUSED(translation)
                if (!english.count(context) || !english.at(context).count(source))
                    problems.add(QStringLiteral("%1 has %2/%3, English has not").arg(code, context, source));
            }
    }
    QVERIFY2(problems.list.isEmpty(), qPrintable(problems.list.join('\n')));
}

void tst_Translations::everyPageSwitchesLanguageCompletely()
{
    QVERIFY(!m_catalogues.empty());
    extendedFeatures = true;
    isNewMode = true;
    Main_View frame;
    frame.show();
    frame.slot_show_Lighting();
    frame.slot_show_Noti();
    frame.slot_show_Setting();
    frame.slot_show_Info();
    Widget_LocationPolicy consent;
    const HWData hw = sampleData();
    QStringList problems;

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

        const Catalogue& catalogue = m_catalogues[code];
        const std::pair<const char*, QWidget*> pages[] = {
            {"frame", &frame},
            {"Information", frame.information_View},
            {"Lighting", frame.lighting_View},
            {"Notification", frame.noti_View},
            {"Settings", frame.setting_View},
            {"consent", &consent}};
        for (const auto& [pageName, page] : pages) {
            if (page != &frame && page != &consent) {
                const QString slot = pageName == QLatin1String("Information") ? "slot_show_Info"
                                     : pageName == QLatin1String("Lighting")  ? "slot_show_Lighting"
                                     : pageName == QLatin1String("Notification") ? "slot_show_Noti"
                                                                                  : "slot_show_Setting";
                QMetaObject::invokeMethod(&frame, slot.toLatin1().constData(), Qt::DirectConnection);
            }
            const QStringList texts = visibleTexts(page);
            for (const QString& text : texts) {
                for (const auto& [context, messages] : catalogue) {
                    for (const auto& [source, translation] : messages) {
                        // A key shown as it stands although this language says otherwise.
                        const bool keyShown = text == source ||
                                              (source.endsWith(':') && text.startsWith(source) &&
                                               !translation.startsWith(source));
                        if (keyShown && translation != source)
                            problems << QStringLiteral("%1 %2: \"%3\" (%4) left untranslated")
                                            .arg(code, QLatin1String(pageName), text, context);
                    }
                }
            }
        }
        QCoreApplication::removeTranslator(&translator);
    }
    problems.removeDuplicates();
    QVERIFY2(problems.isEmpty(), qPrintable(problems.join('\n')));
}

QTEST_MAIN(tst_Translations)
#include "tst_translations.moc"

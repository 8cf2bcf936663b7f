// SPDX-License-Identifier: MIT
// Does every stage and page fit a small screen and a large one, in every language?
#include "assistantwindow/assistantresources.h"
#include "assistantwindow/languagenames.h"
#include "core/languages.h"
#include "tests/assistantwindow/scenes.h"
#include "tests/support/textroom.h"

#include <QDir>
#include <QLocale>

class AssistantFitTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { initialiseAssistantResources(); }
    void fits_data();
    void fits();
};

void AssistantFitTest::fits_data()
{
    QTest::addColumn<int>("scene");
    QTest::addColumn<QString>("language");
    QTest::addColumn<QSize>("size");
    for (const QSize &size : {QSize(800, 480), QSize(1366, 768)})
        for (const Language &language : languages)
            for (int i = 0; i < int(scenes::all().size()); ++i)
                QTest::addRow("%s %s %d", scenes::all()[std::size_t(i)].name, language.code,
                              size.width())
                    << i << QString::fromLatin1(language.code) << size;
}

void AssistantFitTest::fits()
{
    QFETCH(int, scene);
    QFETCH(QString, language);
    QFETCH(QSize, size);
    const scenes::Scene &shown = scenes::all()[std::size_t(scene)];
    QVERIFY(installRequestedLanguage(QStringLiteral("assistant"), language));
    madestatus::MadeInstrument instrument;
    scenes::fill(instrument, shown);
    const bool red = qEnvironmentVariableIsSet("QUORVANDEL_RED");
    assistantwindow::AssistantWindow window(instrument, scenes::settingsOf(shown, red, language),
                                            [](const auto &) {});
    window.resize(size);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    scenes::addHistory(window, instrument);
    scenes::openPage(window, shown.button);
    window.showNormal();
    window.resize(size);
    settle();
    if (const QString folder = qEnvironmentVariable("QUORVANDEL_PICTURES"); !folder.isEmpty())
        window.grab().save(QStringLiteral("%1/%2-%3-%4.png")
                               .arg(folder, QString::fromLatin1(shown.name), language)
                               .arg(size.width()));
    QCOMPARE(window.size(), size);
    const QStringList lacks = lacksIn(window);
    QVERIFY2(lacks.isEmpty(), qPrintable(lacks.join('\n')));
}

QTEST_MAIN(AssistantFitTest)
#include "tst_assistantfit.moc"

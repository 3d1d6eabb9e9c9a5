#include "AppWindow.h"
#include "audio/VoSpectrumPanel.h"
#include "speech/VoLanguageModelTrainer.h"
#include "speech/VoPSRecognizer.h"
#include "stubs/AudioPlayerStub.h"
#include "support/TestPaths.h"

#include <QQmlComponent>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

/// A course phrase's recording as the recogniser sees it, spectrum included.
AudioPowerSpectrumInfo courseSpectrum(const QString &voice, const QString &text)
{
    QTemporaryDir folder;
    VoLanguageModelTrainer trainer;
    trainer.setLmBasePath(folder.path());
    const LanguageModelError model = trainer.generateLanguageModelFromArray(
        VoPSRecognizer::getAllWordFromText(text, true), u"test"_s, TestPaths::acousticModel());
    EXPECT_TRUE(model.succeeded());
    VoPSRecognizer recognizer;
    recognizer.runRecognitionOnWavFileAtPath(voice, model.userInfo.value(u"LMPath"_s).toString(),
                                             model.userInfo.value(u"DictionaryPath"_s).toString(),
                                             TestPaths::acousticModel(), false);
    return recognizer.powerSpectrumInfo();
}

TEST(SpectrumPanelUi, ShowsTheSpectrumWithThePlayedPartDimmed)
{
    AudioPlayerStubFactory players;
    AppWindow app;
    const QString voice = TestPaths::course() + u"/10/voices/1005.mp3"_s;
    VoSpectrumPanel panel;
    panel.setSpectrum(voice, courseSpectrum(voice, u"Was machst du in deiner Freizeit?"_s));
    ASSERT_GT(panel.spectrumWidth(), 200);

    QQmlComponent component(&app.engine(), QUrl(u"qrc:/Tolvane/VoSpectrumPanelView.qml"_s));
    std::unique_ptr<QObject> created(component.beginCreate(app.engine().rootContext()));
    ASSERT_TRUE(created) << qPrintable(component.errorString());
    created->setProperty("panel", QVariant::fromValue(&panel));
    created->setProperty("y", 120);
    component.completeCreate();
    auto *view = qobject_cast<QQuickItem *>(created.get());
    view->setParentItem(app.window()->contentItem());
    view->setWidth(app.window()->width());

    const QQuickItem *container = findItem(view, u"asContainer"_s);
    ASSERT_NE(container, nullptr);
    EXPECT_DOUBLE_EQ(panel.containerWidth(), container->width());
    EXPECT_NEAR(view->height(), view->implicitHeight(), 0.5);

    panel.playerBox()->play(true);
    ASSERT_NE(players.last, nullptr);
    players.last->setDuration(3.0);
    players.last->setCurrentTime(1.5);
    panel.playerBox()->tick();
    ASSERT_FLOAT_EQ(panel.playProgress(), 0.5F);

    const QImage shot = app.screenshot(u"spectrum-panel-half-played"_s);
    // The dimmed half lets the blue through; the other half is the plain grey picture.
    const QQuickItem *spectrum = findItem(view, u"asView"_s);
    ASSERT_NE(spectrum, nullptr);
    const QPointF played = spectrum->mapToScene({spectrum->width() * 0.25, 2.0});
    const QPointF ahead = spectrum->mapToScene({spectrum->width() * 0.75, 2.0});
    const qreal ratio = shot.devicePixelRatio();
    const QColor dim = shot.pixelColor((played * ratio).toPoint());
    const QColor plain = shot.pixelColor((ahead * ratio).toPoint());
    EXPECT_GT(dim.blue(), dim.red() + 40);
    EXPECT_EQ(plain.blue(), plain.red());
}

} // namespace

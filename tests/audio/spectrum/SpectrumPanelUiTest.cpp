#include "AppWindow.h"
#include "audio/VoSpectrumPanel.h"
#include "speech/PhraseAssessment.h"
#include "speech/VoPSRecognizer.h"
#include "stubs/AudioPlayerStub.h"
#include "support/TestPaths.h"

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
    const PhraseModel model = generatePhraseModel(text, folder.path(), TestPaths::acousticModel());
    EXPECT_TRUE(model.succeeded()) << qPrintable(model.error);
    VoPSRecognizer recognizer;
    recognizer.runRecognitionOnWavFileAtPath(voice, model.languageModelPath, model.dictionaryPath,
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

    const std::unique_ptr<QObject> created = app.createView(
        u"VoSpectrumPanelView.qml"_s, {{u"panel"_s, QVariant::fromValue(&panel)}, {u"y"_s, 120}});
    auto *view = qobject_cast<QQuickItem *>(created.get());
    ASSERT_NE(view, nullptr);
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

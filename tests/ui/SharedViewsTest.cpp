#include "AppWindow.h"

#include <QFontMetricsF>
#include <QQmlComponent>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>
#include <gtest/gtest.h>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

class SharedViewsTest : public ::testing::Test {
protected:
    AppWindow app;

    // Creates views of the Tolvane module from QML text, placed over the app's window. The text
    // is given an address in the module's folder so that it sees the views as their siblings do.
    std::unique_ptr<QObject> create(const QByteArray &qml)
    {
        QQmlComponent component(&app.engine());
        component.setData("import QtQuick\nimport Tolvane\n" + qml,
                          QUrl(u"qrc:/Tolvane/SharedViewsTest.qml"_s));
        std::unique_ptr<QObject> object(component.beginCreate(app.engine().rootContext()));
        if (!object) {
            ADD_FAILURE() << qPrintable(component.errorString());
            return object;
        }
        object->setProperty("parent", QVariant::fromValue(app.window()->contentItem()));
        component.completeCreate();
        return object;
    }

    // The pop-up's dimmed layer is drawn by the window's overlay, not inside the pop-up.
    [[nodiscard]] bool maskShown() const
    {
        const QList<QQuickItem *> masks = findItems(app.window()->contentItem(), u"popUpMask"_s);
        return std::any_of(masks.begin(), masks.end(), [](const QQuickItem *mask) {
            return mask->isVisible() && mask->opacity() > 0;
        });
    }

    // The first and last rows of the item's box in the window's picture with dark (text) pixels.
    // Not boundingRect(): a text item's is that of its text, which is what is measured.
    [[nodiscard]] std::pair<int, int> inkRows(QQuickItem *item) const
    {
        const QImage image = app.window()->grabWindow();
        const QRect box =
            item->mapRectToScene(QRectF(0, 0, item->width(), item->height())).toRect();
        int top = -1;
        int bottom = -1;
        for (int y = box.top(); y <= box.bottom(); ++y)
            for (int x = box.left(); x <= box.right(); ++x)
                if (qGray(image.pixel(x, y)) < 128) {
                    top = top < 0 ? y - box.top() : top;
                    bottom = y - box.top();
                    break;
                }
        return {top, bottom};
    }
};

} // namespace

TEST_F(SharedViewsTest, ClosingAPopUpTakesItsMaskAway)
{
    const auto popUp = create(R"(VoPopView { width: 280; height: 200; title: "Write it" })");
    ASSERT_TRUE(popUp);
    EXPECT_FALSE(maskShown());

    for (const bool byButton : {true, false}) {
        QMetaObject::invokeMethod(popUp.get(), "open");
        ASSERT_TRUE(QTest::qWaitFor([&] { return maskShown(); }));
        if (byButton)
            app.tapCentre(findItem(app.window()->contentItem(), u"closeButton"_s));
        else
            QTest::keyClick(app.window(), Qt::Key_Escape);
        ASSERT_TRUE(QTest::qWaitFor([&] { return !popUp->property("visible").toBool(); }))
            << (byButton ? "close button" : "Escape");
        EXPECT_TRUE(QTest::qWaitFor([&] { return !maskShown(); }));
    }
    // Nothing is left over the screen to swallow its taps.
    app.tapCentre(AppWindow::listRow(findItem(app.stack(), u"categoryList"_s), 0));
    EXPECT_TRUE(app.waitForDepth(2));
}

TEST_F(SharedViewsTest, LabelTextSitsInTheMiddleUnlessAlignedToTheBottom)
{
    const auto sheet = create(R"(Rectangle {
        width: 300; height: 300; z: 10; color: "white"
        VoLabel { objectName: "middle"; width: 300; height: 120; color: "black"; text: "Hallo" }
        VoLabel {
            objectName: "bottom"; y: 150; width: 300; height: 120; color: "black"; text: "Hallo"
            verticalAlignment: Text.AlignBottom
        }
    })");
    ASSERT_TRUE(sheet);
    auto *root = qobject_cast<QQuickItem *>(sheet.get());
    QQuickItem *middle = findItem(root, u"middle"_s);
    QQuickItem *bottom = findItem(root, u"bottom"_s);
    ASSERT_TRUE(middle && bottom);

    const auto [middleTop, middleBottom] = inkRows(middle);
    EXPECT_NEAR(middleTop + middleBottom, middle->height(), 8);

    // "Hallo" has no descender, so its ink ends at the baseline: one descent above the edge.
    const auto [bottomTop, bottomBottom] = inkRows(bottom);
    const double descent = QFontMetricsF(bottom->property("font").value<QFont>()).descent();
    EXPECT_GT(bottomTop, bottom->height() / 2);
    EXPECT_NEAR(bottomBottom, bottom->height() - descent, 2);
}

#pragma once

#include <QGuiApplication>
#include <QProcess>
#include <QTest>

namespace quittika::test {

/// Ways of the real mouse, all of them in one go, so that a drag does not wait for its own end. Places are in
/// the toolkit's pixels of the screen.
class Mouse {
public:
    Mouse& to(const QPointF& place) {
        const QPoint pixel = (place * qGuiApp->devicePixelRatio()).toPoint();
        return add({"mousemove", QString::number(pixel.x()), QString::number(pixel.y())});
    }
    Mouse& down() { return add({"mousedown", "1"}); }
    Mouse& up() { return add({"mouseup", "1"}); }
    Mouse& click() { return down().up(); }
    Mouse& wheel_up() { return add({"click", "4"}); }

    void go() {
        QProcess hand;
        hand.start("xdotool", way_);
        ASSERT_TRUE(QTest::qWaitFor([&] { return hand.state() == QProcess::NotRunning; }, kLongest));
        ASSERT_EQ(hand.exitCode(), 0) << hand.readAllStandardError().toStdString();
        QTest::qWait(kPause);
    }

private:
    static constexpr int kLongest = 10000; ///< milliseconds
    static constexpr int kPause = 30;      ///< milliseconds, for the program to follow

    Mouse& add(const QStringList& act) {
        way_ << act << "sleep" << QString::number(kPause / 1000.0);
        return *this;
    }

    QStringList way_;
};

} // namespace quittika::test

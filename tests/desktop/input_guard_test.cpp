#include "desktop/parts/input_guard.h"

#include <QTest>
#include <QtWidgets>
#include <gtest/gtest.h>

#include <optional>

namespace veln {
namespace {

// A menu entry with a key, a button with a letter and the one widget that stays open.
TEST(InputGuard, LetsKeysAndClicksThroughToTheOpenWidgetAlone)
{
  QMainWindow window;
  auto* const page = new QWidget;
  auto* const work = new QPushButton("&Work", page);
  auto* const stop = new QPushButton("&Stop", page);
  stop->move(0, 2 * work->sizeHint().height());
  window.setCentralWidget(page);
  int worked = 0;
  int stopped = 0;
  window.menuBar()->addMenu("&Menu")->addAction("Entry", QKeySequence("Ctrl+E"), [&] { ++worked; });
  QObject::connect(work, &QPushButton::clicked, [&] { ++worked; });
  QObject::connect(stop, &QPushButton::clicked, [&] { ++stopped; });
  window.show();
  window.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  const auto pressAll = [&](int wanted) {
    worked = stopped = 0;
    QTest::keyClick(&window, Qt::Key_E, Qt::ControlModifier);
    QTest::mouseClick(work, Qt::LeftButton);
    QTest::keyClick(&window, Qt::Key_W, Qt::AltModifier);
    QTest::mouseClick(stop, Qt::LeftButton);
    QTest::keyClick(&window, Qt::Key_S, Qt::AltModifier);  // a letter keeps its button down for a moment
    return QTest::qWaitFor([&] { return stopped == 2 && worked == wanted; }, 1000);
  };
  std::optional<InputGuard> guard(stop);
  EXPECT_TRUE(pressAll(0)) << worked << " " << stopped;
  window.close();
  EXPECT_TRUE(window.isVisible());
  guard.reset();
  EXPECT_TRUE(pressAll(3)) << worked << " " << stopped;
}

}  // namespace
}  // namespace veln

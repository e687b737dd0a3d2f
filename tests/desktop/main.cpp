// Runs the desktop's tests with real widgets on a screen that exists in memory alone.
#include <QApplication>

#include <gtest/gtest.h>

#include "desktop/look.h"

#if defined(__SANITIZE_ADDRESS__)
// What fonts and the toolkit's plug-ins keep to the end of the program is not ours to free.
extern "C" const char* __lsan_default_options() {
  return "suppressions=" ZWT_SOURCE_DIR "/tests/desktop/leaks.supp:print_suppressions=0";
}
#endif

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  testing::InitGoogleTest(&argc, argv);
  QApplication application(argc, argv);
  zwt::DressApplication(application);
  QApplication::setQuitOnLastWindowClosed(false);
  return RUN_ALL_TESTS();
}

#include "desktop/platform/stil.h"

#include <QApplication>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    // The file dialogs remember their last folder there; no test sees what another one left.
    const QTemporaryDir einstellungen;
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(einstellungen.path()));
    QApplication programm(argc, argv);
    velmaris::stil_setzen();
    return RUN_ALL_TESTS();
}

// The window tests start here, under a widget application with English texts.
#include "support/TestProgram.h"

#include <QApplication>

int main(int argc, char** argv) {
    return runTests<QApplication>(argc, argv, "en");
}

// Every headless test program starts here.
#include "support/TestProgram.h"

#include <QGuiApplication>

int main(int argc, char** argv) {
    return runTests<QGuiApplication>(argc, argv);
}

#include "QuickTestSetup.h"

#include <QtQuickTest/quicktest.h>

int main(int argc, char *argv[])
{
    Loadwick::QuickTestSetup setup;
    return quick_test_main_with_setup(argc, argv, "loadwick", nullptr, &setup);
}

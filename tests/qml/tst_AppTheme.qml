import QtQuick
import QtTest
import Loadwick

TestCase {
    name: "AppTheme"

    function test_theModuleIsFound() {
        compare(AppTheme.hairline, 1);
    }
}

import QtQuick
import QtTest
import Loadwick

Item {
    width: 600
    height: 400

    LatePage {
        id: page
        anchors.fill: parent
        isShown: false
        onWanted: page.setSource("Absent.qml", { some: "thing" })
    }

    TestCase {
        name: "LatePage"
        when: windowShown

        function test_aPageThatCannotBeLoadedSaysSo() {
            compare(page.status, Loader.Null);
            ignoreWarning(/Absent.qml/);
            page.isShown = true;
            compare(page.status, Loader.Ready);
            verify(page.item.title.startsWith("This page could not be loaded."));
            const shown = page.item;
            page.isShown = false;
            page.isShown = true;
            compare(page.item, shown);
        }
    }
}

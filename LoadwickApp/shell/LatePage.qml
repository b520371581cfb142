import QtQuick
import Loadwick

// A page that is created when it is first shown, and kept. Instead of one that cannot be loaded,
// a line says so; what Qt found is on standard error.
Loader {
    id: page

    required property bool isShown
    property bool hasFailed: false

    // Handled by calling `setSource`.
    signal wanted()

    function ask() {
        if (page.isShown && page.status === Loader.Null)
            page.wanted();
    }

    function showFailure() {
        page.hasFailed = true;
        page.setSource("StatePlaceholder.qml", {
            symbol: "exclamationmark.triangle.fill",
            tint: AppTheme.bandExcessive,
            title: qsTr("This page could not be loaded. Please install Loadwick again.")
        });
    }

    onIsShownChanged: page.ask()
    onStatusChanged: if (page.status === Loader.Error && !page.hasFailed) page.showFailure()
    Component.onCompleted: page.ask()
}

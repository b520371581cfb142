import QtQuick

// A page that is made when it is first looked at, and then stays.
Loader {
    id: page

    required property bool isLookedAt

    // To be answered by `setSource`.
    signal wanted()

    function ask() {
        if (page.isLookedAt && page.status === Loader.Null)
            page.wanted();
    }

    onIsLookedAtChanged: page.ask()
    Component.onCompleted: page.ask()
}

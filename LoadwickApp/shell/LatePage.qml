import QtQuick
import QtQuick.Layouts

// A page that is made when it is first looked at, and then stays.
Loader {
    id: page

    // To be answered by `setSource`.
    signal wanted()

    StackLayout.onIsCurrentItemChanged: {
        if (page.StackLayout.isCurrentItem && page.status === Loader.Null)
            page.wanted();
    }
}

import QtQuick
import QtQuick.Layouts
import Loadwick

// Its children side by side where all of them fit, else one below the other. What a child needs is
// its minimum width where it names one (text that wraps does), else its preferred, else its own.
GridLayout {
    id: layout

    readonly property list<real> needs: {
        const widths = [];
        for (let i = 0; i < layout.visibleChildren.length; ++i) {
            const child = layout.visibleChildren[i] as Item;
            const need = child.Layout.minimumWidth > 0 ? child.Layout.minimumWidth
                       : child.Layout.preferredWidth > 0 ? child.Layout.preferredWidth
                       : child.implicitWidth;
            if (need > 0)
                widths.push(need);
        }
        return widths;
    }
    readonly property real neededWidth: {
        let sum = 0;
        for (const need of layout.needs)
            sum += need + layout.columnSpacing;
        return sum - layout.columnSpacing;
    }
    // Before its width is known it takes the common case: each change of mind lays the page out anew.
    readonly property bool stacked: layout.width > 0 && layout.width < layout.neededWidth

    // A layout that is being laid out takes no note of other columns, so they come right after.
    function arrange() {
        layout.columns = layout.stacked ? 1 : Math.max(1, layout.needs.length);
    }

    onStackedChanged: later.restart()
    onNeedsChanged: later.restart()
    Component.onCompleted: layout.arrange()

    Timer {
        id: later
        interval: 0
        onTriggered: layout.arrange()
    }

    // Not the width of its columns: then it would be made too wide rather than stacked.
    Layout.minimumWidth: 0
    columns: 2
    columnSpacing: AppTheme.wideSpace
    rowSpacing: AppTheme.cardSpace
}

import QtQuick
import QtQuick.Layouts
import Loadwick

// Its children side by side if all of them fit, else stacked. A child needs its minimum width if it
// has one (text that wraps does), else its preferred width, else its implicit width.
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
    // Before its width is known it assumes the common case: every change lays the page out again.
    readonly property bool stacked: layout.width > 0 && layout.width < layout.neededWidth

    // A layout ignores new columns during a layout pass, so they are set right after.
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

    // Not the width of its columns, which would make it too wide instead of stacked.
    Layout.minimumWidth: 0
    columns: 2
    columnSpacing: AppTheme.wideSpace
    rowSpacing: AppTheme.cardSpace
}

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
    readonly property bool stacked: layout.width < layout.neededWidth

    columns: layout.stacked ? 1 : Math.max(1, layout.needs.length)
    columnSpacing: AppTheme.wideSpace
    rowSpacing: AppTheme.cardSpace
}

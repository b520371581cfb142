import QtQuick
import Loadwick

// How a repository's total changed between its two most recent scans. Growth is coloured as a
// warning and shrinkage as good news; a first scan has nothing to compare with and says so.
Item {
    id: pill

    required property int kind
    required property string title
    required property string symbol
    readonly property bool isFirstScan: pill.kind === TrendKind.FirstScan
    readonly property Item shown: pill.isFirstScan ? first : change
    readonly property color tint: {
        switch (pill.kind) {
        case TrendKind.Grew: return AppTheme.bandHeavyText;
        case TrendKind.Shrank: return AppTheme.bandLeanText;
        default: return AppTheme.secondaryText;
        }
    }

    implicitWidth: pill.shown.implicitWidth
    implicitHeight: pill.shown.implicitHeight

    ProvenancePill {
        id: first
        objectName: "first"
        label: pill.title
        visible: pill.isFirstScan
    }
    StatusPill {
        id: change
        objectName: "change"
        title: pill.title
        symbol: pill.symbol
        tint: pill.tint
        visible: !pill.isFirstScan
    }
}

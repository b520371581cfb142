import QtQuick
import Loadwick

// How a repository's total changed between its two most recent scans. Growth is coloured as a
// warning, shrinkage as success; a first scan says that there is nothing to compare with.
StatusPill {
    id: pill

    required property int kind
    readonly property bool isFirstScan: pill.kind === TrendKind.FirstScan

    tint: {
        switch (pill.kind) {
        case TrendKind.Grew: return AppTheme.bandHeavyText;
        case TrendKind.Shrank: return AppTheme.bandLeanText;
        default: return AppTheme.secondaryText;
        }
    }
    font: isFirstScan ? AppTheme.captionFont : AppTheme.subheadlineStrongFont
    color: isFirstScan ? AppTheme.quietFill : Qt.alpha(tint, AppTheme.tintOpacity)
}

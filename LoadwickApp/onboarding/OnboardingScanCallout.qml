import Loadwick

// The mark of a scan that goes on: it turns once a second.
StateIcon {
    symbol: "arrow.triangle.2.circlepath"
    tint: AppTheme.accent
    turning: true
}

pragma Singleton
import QtQuick
import Loadwick

// Every colour, font, measure and duration of the window, by role.
QtObject {
    readonly property bool dark: Appearance.dark
    readonly property bool reduceMotion: Appearance.reduceMotion
    readonly property bool moreContrast: Appearance.moreContrast
    // The scale of text; containers of text grow with it.
    readonly property real textScale: Appearance.textScale

    function scaled(pixels) {
        return Math.round(pixels * textScale);
    }

    // Backgrounds, from the back to the front.
    readonly property color window: dark ? "#1B1B1E" : "#F4F4F6"
    readonly property color sidebar: dark ? "#232327" : "#EBEBEF"
    readonly property color surface: dark ? "#29292E" : "#FFFFFF"
    readonly property list<color> grounds: [window, sidebar, surface]
    // With more contrast, lines reach 3:1 and quiet words 7:1.
    readonly property color separator: moreContrast ? (dark ? "#85858F" : "#80808A")
                                                    : (dark ? "#3B3B42" : "#DCDCE2")
    // The border of a card that is not hovered.
    readonly property real quietBorderOpacity: moreContrast ? 1 : 0.6

    readonly property color text: dark ? "#F1F1F4" : "#1B1B1F"
    readonly property color secondaryText: moreContrast ? (dark ? "#D4D5DC" : "#3A3B43")
                                                        : (dark ? "#ACADB7" : "#5A5B64")
    readonly property color ownAccent: dark ? "#7AA7FF" : "#2157C5"
    readonly property color accent: Appearance.hasAccent
        ? Appearance.readable(Appearance.accent, grounds, selectionOpacity) : ownAccent
    // Text on the accent.
    readonly property color accentText: dark ? "#14161C" : "#FFFFFF"

    // A band has two shades of one colour: a bright one for shapes, a readable one for text.
    readonly property color bandLean: dark ? "#46BF78" : "#2B9A57"
    readonly property color bandHeavy: dark ? "#F0A036" : "#D97F00"
    readonly property color bandExcessive: dark ? "#FA6A5E" : "#D63A2E"
    readonly property color bandLeanText: dark ? "#5FD08C" : "#196B3C"
    readonly property color bandHeavyText: dark ? "#F5AE4E" : "#8B5000"
    readonly property color bandExcessiveText: dark ? "#FF8075" : "#B1271E"
    // Indexed by band: lean, heavy, excessive.
    readonly property list<color> bandShapes: [bandLean, bandHeavy, bandExcessive]
    readonly property list<color> bandTexts: [bandLeanText, bandHeavyText, bandExcessiveText]

    // Blue, teal, purple, orange, gray: series and slices index them, wrapping around.
    readonly property list<color> chartColors: dark
        ? ["#6295F5", "#38B6C3", "#AC82EE", "#EE9440", "#9B9EA8"]
        : ["#2F6FED", "#12899A", "#8549D6", "#D97706", "#767983"]

    // Overlays for a hovered, a pressed and a resting ground.
    readonly property color hoverFill: Qt.alpha(text, 0.06)
    readonly property color pressedFill: Qt.alpha(text, 0.10)
    readonly property color quietFill: Qt.alpha(text, 0.06)
    readonly property real selectionOpacity: dark ? 0.18 : 0.12
    readonly property color selectionFill: Qt.alpha(accent, selectionOpacity)
    // Covers everything behind a modal sheet.
    readonly property color dim: Qt.rgba(0, 0, 0, dark ? 0.5 : 0.3)
    // Fainter than a separator.
    readonly property color gridLine: Qt.alpha(separator, dark ? 0.7 : 0.8)
    readonly property real tintOpacity: 0.12
    readonly property real disabledOpacity: moreContrast ? 0.6 : 0.4

    // The fill of a tile at rest and of the current one, on both of which names must be readable,
    // and the opacity of the others meanwhile.
    readonly property real tileOpacity: dark ? 0.4 : 0.45
    readonly property real currentTileOpacity: dark ? 0.5 : 0.65
    readonly property real tileDimming: 0.5

    // The application's own; its figures are of equal width, so it serves for numbers too. It has no
    // medium weight, so medium text is semibold.
    readonly property string family: Application.font.family
    readonly property font heroMetricFont: Qt.font({ family: family, pixelSize: scaled(46), weight: Font.DemiBold, letterSpacing: -0.5 })
    readonly property font largeTitleFont: Qt.font({ family: family, pixelSize: scaled(28), weight: Font.DemiBold, letterSpacing: -0.3 })
    readonly property font gaugeFont: Qt.font({ family: family, pixelSize: scaled(24), weight: Font.DemiBold })
    readonly property font title2Font: Qt.font({ family: family, pixelSize: scaled(20), weight: Font.DemiBold })
    readonly property font title3Font: Qt.font({ family: family, pixelSize: scaled(17) })
    readonly property font title3StrongFont: Qt.font({ family: family, pixelSize: scaled(17), weight: Font.DemiBold })
    readonly property font headlineFont: Qt.font({ family: family, pixelSize: scaled(17), weight: Font.DemiBold })
    readonly property font emphasisFont: Qt.font({ family: family, pixelSize: scaled(15), weight: Font.DemiBold })
    readonly property font bodyFont: Qt.font({ family: family, pixelSize: scaled(13) })
    readonly property font bodyStrongFont: Qt.font({ family: family, pixelSize: scaled(13), weight: Font.DemiBold })
    readonly property font subheadlineFont: Qt.font({ family: family, pixelSize: scaled(13) })
    readonly property font subheadlineStrongFont: Qt.font({ family: family, pixelSize: scaled(13), weight: Font.DemiBold })
    readonly property font captionFont: Qt.font({ family: family, pixelSize: scaled(12) })
    readonly property font captionStrongFont: Qt.font({ family: family, pixelSize: scaled(12), weight: Font.DemiBold })

    readonly property int hairline: 1
    readonly property int tightSpace: 4
    readonly property int smallSpace: 8
    readonly property int mediumSpace: 12
    readonly property int cardSpace: 16
    readonly property int pageMargin: 24
    readonly property int wideSpace: 32
    readonly property int cardPadding: 16
    readonly property int contentWidth: 1040
    readonly property int windowMinimumWidth: 960
    readonly property int windowMinimumHeight: 640
    // No page is laid out narrower. In the largest text it takes its room from the sidebar.
    readonly property int detailMinimumWidth: Math.max(480, scaled(340))
    readonly property int sidebarMinimumWidth: Math.min(scaled(220), windowMinimumWidth - hairline - detailMinimumWidth)
    readonly property int stateWidth: scaled(420)
    // The width that words beside a figure need; with less they go below it.
    readonly property int copyMinimumWidth: scaled(280)
    readonly property int controlHeight: scaled(32)
    readonly property int iconSize: 16
    readonly property int dotSize: 8
    // How far an arrow key scrolls.
    readonly property int scrollStep: 48
    // The column of trend pills: wide enough for a change of six figures.
    readonly property int trendWidth: scaled(104)
    readonly property int treemapWidth: 608
    // A column of figures, or of shares "of total".
    readonly property int figureColumn: scaled(72)
    readonly property int tableRowHeight: scaled(36)
    // One line of a list of scans or repositories.
    readonly property int listRowHeight: scaled(48)
    // A bar below its name and figure, and one beside them.
    readonly property int barRowHeight: scaled(36)
    readonly property int combinedRowHeight: scaled(24)

    readonly property int meterHeight: 16
    readonly property int meterTickWidth: 2
    readonly property int gaugeSide: scaled(100)
    readonly property int gaugeArcSide: scaled(90)

    readonly property int sheetWidth: scaled(560)
    readonly property int illustrationHeight: 140
    // The distance that a step of the walk-through slides.
    readonly property int stepSlide: 16
    readonly property int stepDotSide: 7

    readonly property int cardRadius: 14
    readonly property int controlRadius: 8

    // Milliseconds, already adapted to reduced motion.
    readonly property int hoverDuration: reduceMotion ? 0 : 180
    readonly property int pageDuration: reduceMotion ? 0 : 320
    // How long a confirmation note stays.
    readonly property int noteDuration: 2000
    readonly property int stepDuration: reduceMotion ? 120 : 220
    readonly property int sheetCloseDuration: reduceMotion ? 100 : 160
    readonly property int stillDotDuration: 150
    readonly property int bobDuration: 1100
    readonly property int legendDuration: reduceMotion ? 120 : 280
    // The delay between rows of the legend.
    readonly property int legendDelay: reduceMotion ? 0 : 60
}

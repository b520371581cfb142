import QtQuick
import QtTest
import Loadwick

Item {
    id: scene
    width: 500
    height: 400

    Column {
        width: parent.width

        HistoryRow { id: bare; width: parent.width; title: "webshop"; detail: "1 scan"; value: "27,654" }
        HistoryRow { id: ranked; width: parent.width; rank: 7; title: "webshop"; detail: "1 scan"; value: "27,654"; valueCaption: "Lean"; valueTint: AppTheme.bandLeanText }
        HistoryRow { id: hundredth; width: parent.width; rank: 128; title: "webshop"; detail: "1 scan"; value: "654" }
        HistoryRow {
            id: lengthy
            width: 300
            rank: 1
            title: "a-name-that-goes-on-and-on-".repeat(9)
            detail: "a detail of great length ".repeat(9)
            value: "9,223,372,036,854"
            path: "/srv/one"
            sentence: "1. a name of great length"
            accessoryWidth: 90
            ProvenancePill { objectName: "pill"; label: "First scan" }
        }
        HistoryRow { id: markup; width: parent.width; title: "<b>bold</b>"; detail: "<i>one</i>"; value: "<u>3</u>" }
    }

    TestCase {
        name: "HistoryRow"
        when: windowShown

        function edge(row, name) {
            const part = findChild(row, name);
            return part.mapToItem(row, part.width, 0).x;
        }

        function test_aRowWithoutRankTintAndCaptionEndsOnTheTrailingEdge() {
            compare(edge(bare, "value"), bare.width);
            compare(findChild(bare, "rank").visible, false);
            compare(findChild(bare, "caption").visible, false);
            compare(findChild(bare, "accessory").visible, false);
            compare(findChild(bare, "title").mapToItem(bare, 0, 0).x, 0);
            compare(findChild(bare, "value").color, AppTheme.text);
        }

        function test_alignsRanksOfAnyLength() {
            compare(edge(ranked, "rank"), edge(hundredth, "rank"));
            compare(findChild(ranked, "rank").text, "7");
            compare(findChild(hundredth, "rank").truncated, false);
            verify(findChild(hundredth, "rank").implicitWidth <= findChild(hundredth, "rank").width);
        }

        function test_partsAreSixteenApartAndFourFromTheEdges() {
            compare(findChild(ranked, "words").mapToItem(ranked, 0, 0).x - edge(ranked, "rank"), 16);
            const line = ranked.children[0];
            compare(ranked.implicitHeight, line.implicitHeight + 8);
            compare(line.y, 4);
        }

        function test_theValueTakesItsTintAndItsCaption() {
            compare(findChild(ranked, "value").color, AppTheme.bandLeanText);
            compare(findChild(ranked, "caption").text, "Lean");
            compare(edge(ranked, "caption"), ranked.width);
        }

        function test_theFiguresAreSemiboldAndTheCaptionsQuiet() {
            compare(findChild(ranked, "value").font.weight, Font.DemiBold);
            compare(findChild(ranked, "rank").color, AppTheme.secondaryText);
            compare(findChild(ranked, "detail").font.pixelSize, AppTheme.captionFont.pixelSize);
            compare(findChild(ranked, "detail").color, AppTheme.secondaryText);
        }

        function test_aLongTitleIsElidedAndPushesNoFigureOut() {
            compare(findChild(lengthy, "title").truncated, true);
            compare(findChild(lengthy, "detail").truncated, true);
            compare(edge(lengthy, "accessory"), lengthy.width);
            compare(findChild(lengthy, "value").truncated, false);
            compare(edge(lengthy, "value"), lengthy.width - 90 - 16);
        }

        function test_theAccessoryEndsOnTheTrailingEdge() {
            compare(edge(lengthy, "pill"), lengthy.width);
        }

        function test_aToolTipHoldsTheWholeTitleAndThePath() {
            verify(findChild(lengthy, "words").whole.startsWith("a-name-that"));
            verify(findChild(lengthy, "words").whole.endsWith("\n/srv/one"));
            compare(findChild(bare, "words").whole, "");
        }

        function test_outsideTextIsShownVerbatim() {
            for (const part of ["title", "detail", "value"])
                compare(findChild(markup, part).textFormat, Text.PlainText);
        }

        function test_assistiveTechnologyReadsTheRowAsOneSentence() {
            compare(lengthy.Accessible.role, Accessible.ListItem);
            compare(lengthy.Accessible.name, "1. a name of great length");
            compare(lengthy.Accessible.description, "/srv/one");
        }
    }
}

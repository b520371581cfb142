import QtQuick
import QtTest
import Loadwick

TestCase {
    id: test

    name: "MetricTile"
    when: windowShown
    width: 400
    height: 300

    MetricTile {
        id: tile
        title: "Latest scan"
        value: "27,654"
        caption: "<b>under</b> 30,000"
    }

    function test_stacksTitleValueAndCaption() {
        compare(tile.children[0].text, "Latest scan");
        compare(tile.children[1].text, "27,654");
        compare(tile.children[2].text, "<b>under</b> 30,000");
        verify(tile.children[1].y > tile.children[0].y);
        verify(tile.children[2].y > tile.children[1].y);
    }

    function test_theFigureIsTheMostProminent() {
        verify(tile.children[1].font.pixelSize > tile.children[0].font.pixelSize);
        compare(tile.children[1].font.weight, Font.DemiBold);
    }

    function test_onlyTheFigureTakesTheTint() {
        compare(tile.children[1].color, AppTheme.text);
        tile.tint = AppTheme.bandHeavyText;
        compare(tile.children[1].color, AppTheme.bandHeavyText);
        compare(tile.children[0].color, AppTheme.secondaryText);
        tile.tint = AppTheme.text;
    }

    function test_isAsWideAsItsLongestText() {
        compare(tile.implicitWidth, Math.ceil(tile.children[2].implicitWidth));
    }
}

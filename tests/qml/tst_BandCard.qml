import QtQuick
import QtTest
import Loadwick
import LoadwickTest

Item {
    id: scene
    width: 800
    height: 600

    SampleBand { id: sample; total: 42318 }

    Component {
        id: cards
        BandCard { width: 800; band: sample.presenter }
    }

    // Too narrow for a range, and breaks lines only where a sentence may.
    Text { id: ruler; width: 40; wrapMode: Text.WordWrap }

    TestCase {
        name: "BandCard"
        when: windowShown

        function cleanup() { sample.total = 42318; }

        // What a reader sees; word joiners are invisible.
        function label(item, text) {
            if (typeof item.text === "string" && item.text.replace(/\u2060/g, "") === text && item.visible)
                return item;
            for (let i = 0; i < item.children.length; ++i) {
                const found = label(item.children[i], text);
                if (found)
                    return found;
            }
            return null;
        }

        function test_aTotalOfZeroHasALineThatSaysWhy() {
            const card = createTemporaryObject(cards, scene);
            const words = "This session received no tokens; a hook may have blocked its prompt.";
            verify(!label(card, words));
            sample.total = 0;
            verify(label(card, words));
        }

        function test_showsTheBandTheTotalAndWhoMeasuredIt() {
            const card = createTemporaryObject(cards, scene);
            for (const text of ["Heavy startup context", "42,318", "tokens", "Authoritative · measured by Claude",
                                "The total measured by Claude is 42,318 tokens, which falls in the Heavy band (30,000–60,000)."])
                verify(label(card, text), text);
            compare(label(card, "Heavy startup context").color, AppTheme.bandHeavyText);
            compare(label(card, "42,318").font.pixelSize, 46);
        }

        function test_noLineEndsInsideTheBandsRange() {
            const card = createTemporaryObject(cards, scene);
            const sentence = label(card, sample.presenter.sentence);
            compare(sentence.Accessible.name, sample.presenter.sentence);
            ruler.text = sentence.text.slice(sentence.text.indexOf("("));
            compare(ruler.lineCount, 1);
        }

        function test_isSideBySideIfItFits() {
            const card = createTemporaryObject(cards, scene);
            const total = label(card, "42,318");
            tryVerify(() => total.mapToItem(card, 0, 0).x > 400);
        }

        function test_stacksIfItDoesNotFit() {
            const card = createTemporaryObject(cards, scene, { width: 420 });
            const title = label(card, "Heavy startup context");
            const total = label(card, "42,318");
            tryVerify(() => total.mapToItem(card, 0, 0).y > title.mapToItem(card, 0, 0).y + 40);
            verify(total.mapToItem(card, 0, 0).x < 40);
        }

        function test_explainsTheThresholdsOnDemand() {
            const card = createTemporaryObject(cards, scene);
            const why = sample.presenter.anchorNote;
            compare(label(card, why), null);
            mouseClick(label(card, "Why these bands?"));
            verify(label(card, why));
        }
    }
}

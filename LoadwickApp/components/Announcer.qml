pragma Singleton
import QtQuick

// Has a screen reader speak what no focused item says. The window shows it the words.
QtObject {
    signal announced(string words)

    function announce(words: string): void {
        if (words.length > 0)
            announced(words);
    }
}

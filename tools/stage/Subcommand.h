#pragma once

#include <functional>
#include <string>
#include <vector>

namespace Loadwick {

/// How a subcommand was started.
struct Invocation
{
    int &argc; ///< as in `main`; the toolkit takes its own options out of it
    char **argv;
    std::vector<std::string> words; ///< the arguments after the subcommand's name
};

/// Shows the program on a throw-away home with made-up data: in a window where there is a display,
/// otherwise as pictures in the folder given as the only argument.
int demo(const Invocation &invocation);

/// The program's window over the home that HOME names and the preferences in it, for the end-to-end
/// tests: the stand-in for `claude` is the only command it can start, and its waits are short. A
/// fake folder dialog chooses the path in the file "folder-to-choose" of that home.
///   --platform-dialog   the real folder dialog instead
///   --timeout SECONDS   how long a session may take (default 60)
///   --beside-others     a second window where one is open over the same data
///   --follow-desktop    the colours, fonts and motion that the desktop asks for
int window(const Invocation &invocation);

/// Shows every component in every state, light and dark side by side. With a folder, writes
/// gallery-light.png and gallery-dark.png into it instead.
int gallery(const Invocation &invocation);

/// Writes pictures of the pages, filled with sample scans and sample histories, into a folder:
/// light and dark, at three sizes, all or those whose names begin with one of the other words.
int pictures(const Invocation &invocation);

/// Writes a picture of each page in every look into a folder: light and dark, with standard and
/// with more contrast, in the usual and in the largest text, from left to right and from right to
/// left. The scale is that of QT_SCALE_FACTOR.
int looks(const Invocation &invocation);

/// Prints what the frames of each page cost; see PageCosts. `[--check] [--size WIDTHxHEIGHT]
/// [ROUNDS [NAME...]]`: a name selects all pages whose names begin with it; the scale is that of
/// QT_SCALE_FACTOR. With --check the program fails when a page is slow.
int frames(const Invocation &invocation);

/// Scans with an instant stand-in and prints one line for each of `[ROUNDS]`, three times in
/// milliseconds: from Ctrl+R to the first frame of the result; the same session alone; and from the
/// result's state to the frame that shows it.
int scans(const Invocation &invocation);

/// Acts in a window over the history of `GeneratedFiles::comparedHistory` with `[CATEGORIES]`
/// (default 30) and prints a line for each action: its name, milliseconds to its first frame, the
/// longest time for which the interface thread looked at no event, and resident KiB at rest.
int actions(const Invocation &invocation);

/// Runs `work` with an application object that draws off screen and in software.
int runOffScreen(const Invocation &invocation, const std::function<int()> &work);

/// Prints the line to standard error; returns the exit status of a usage error.
int wrongCall(const std::string &line);

} // namespace Loadwick

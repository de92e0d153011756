#pragma once

namespace selfsame {

// Comparing whole folders while some of their files are filtered out can report folders as
// equal that are not. The warning is due once each time the combination turns risky.
class CompareFoldersWarning {
public:
    struct State {
        bool contentMode = false;
        bool compareFolders = false;
        bool anyFilter = false; // extensions, file size, folder depth or skip patterns
    };

    // Returns true when the warning is to be shown now.
    bool update(const State &state);

private:
    bool m_shownForCurrentCombination = false;
};

} // namespace selfsame

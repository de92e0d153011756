#include "CompareFoldersWarning.h"

namespace selfsame {

bool CompareFoldersWarning::update(const State &state)
{
    const bool risky = state.contentMode && state.compareFolders && state.anyFilter;
    if (!risky) {
        m_shownForCurrentCombination = false;
        return false;
    }
    if (m_shownForCurrentCombination)
        return false;
    m_shownForCurrentCombination = true;
    return true;
}

} // namespace selfsame

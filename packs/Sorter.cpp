#include "packs/Sorter.h"

#include <algorithm>

namespace tumble::Sorter {

// An insertion sort: each card is compared with those below it, from the nearest down to the first that it stays above.
void sortCards(std::vector<std::shared_ptr<Card>>& cards, const CardOrder& order) {
    for (auto card = cards.begin(); card != cards.end(); ++card) {
        auto place = card;
        while (place != cards.begin() && order.fcmp(**card, **(place - 1)) == -1) {
            --place;
        }
        std::rotate(place, card, card + 1);
    }
}

} // namespace tumble::Sorter

#include "simulator/demo/Guid.h"

namespace sim {

std::string makeGuid(std::mt19937_64 &random) {
    std::string guid = "xxxxxxxx-xxxx-4xxx-yxxx-xxxxxxxxxxxx";
    for (char &character : guid) {
        if (character == 'x')
            character = "0123456789ABCDEF"[random() % 16];
        else if (character == 'y')
            character = "89AB"[random() % 4];
    }
    return guid;
}

} // namespace sim

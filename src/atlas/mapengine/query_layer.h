#pragma once

#include <string>

namespace atlas {

class Atlas;

// Takes a query's result (a layer whose name begins with "Query") off the top of the front map and shows the whole map.
// `labelStatement` is the caller's own statement that clears its labels first. Returns whether there was one.
bool removeQueryLayer(Atlas& atlas, const std::string& labelStatement);

}  // namespace atlas

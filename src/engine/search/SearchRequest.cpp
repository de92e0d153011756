#include "search/SearchRequest.h"

namespace selfsame {

SearchRequest storedRequest(SearchRequest request)
{
    request.compareFolders = request.compareFolders && request.detectionMode == DetectionMode::Content;
    request.containedFolders = request.containedFolders && request.detectionMode == DetectionMode::Content;
    if (request.spotlightAttribute == QLatin1String("kMDItemLatitude") ||
        request.spotlightAttribute == QLatin1String("kMDItemLongitude"))
        request.spotlightTolerance /= 3600.0;
    return request;
}

} // namespace selfsame

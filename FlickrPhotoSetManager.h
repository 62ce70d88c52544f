// Loads the user's photo sets (https://www.flickr.com/services/api/flickr.photosets.getList.html).
#pragma once

#include "Korvane/FlickrComposeOptionViewDelegate.h"
#include "Korvane/FlickrPhotoSet.h"
#include "Korvane/FlickrRequest.h"

#include <optional>
#include <vector>

namespace korvane {

class FlickrPhotoSetTableDelegate {
public:
    virtual ~FlickrPhotoSetTableDelegate() = default;
    virtual void reloadData() = 0; // the list has been loaded
};

// Thread: main.
class FlickrPhotoSetManager : public FlickrRequest {
public:
    static std::shared_ptr<FlickrPhotoSetManager> init();

    std::shared_ptr<FlickrComposeOptionViewDelegate> delegate() const { return _delegate.lock(); }
    void setDelegate(std::weak_ptr<FlickrComposeOptionViewDelegate> delegate) { _delegate = std::move(delegate); }
    std::shared_ptr<FlickrPhotoSetTableDelegate> tableDelegate() const { return _tableDelegate.lock(); }
    void setTableDelegate(std::weak_ptr<FlickrPhotoSetTableDelegate> delegate) { _tableDelegate = std::move(delegate); }

    // The no-set entry first, then the user's sets as Flickr orders them; the no-set entry alone where they could not
    // be loaded. Null before the first answer and while it is being refreshed.
    const std::optional<std::vector<FlickrPhotoSet>> &photoSets() const { return _photoSets; }

    // Why the last answer brought no list; null if it did, before it, and while the list is being refreshed. A network
    // error, or FlickrResponseErrorDomain with code 0 and Flickr's message.
    const std::optional<NSError> &problem() const { return _problem; }

    // Asks Flickr anew, for the delegate's account. The table delegate hears of the answer, which comes later; if it is
    // gone by then, the process stops.
    void refreshPhotoSets();

private:
    FlickrPhotoSetManager() = default;
    void _photoSetsAnswered(const std::optional<NSData> &body, const std::optional<NSError> &error);

    std::weak_ptr<FlickrComposeOptionViewDelegate> _delegate;
    std::weak_ptr<FlickrPhotoSetTableDelegate> _tableDelegate;
    std::optional<std::vector<FlickrPhotoSet>> _photoSets;
    std::optional<NSError> _problem;
};

} // namespace korvane

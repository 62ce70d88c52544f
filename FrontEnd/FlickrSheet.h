// The Flickr sheet of a front end.
#pragma once

#include "Korvane/FlickrComposeViewController.h"

namespace korvane {

// A program that shows a sheet to a person does not stop on an audience that it does not know.
inline std::shared_ptr<FlickrComposeViewController> makeFlickrSheet() {
    FlickrComposeViewController::forgetUnknownAudience();
    return FlickrComposeViewController::initWithNibName();
}

} // namespace korvane

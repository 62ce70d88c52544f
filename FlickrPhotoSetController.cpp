// Option screen: the photo set (album) that the photos are added to.
#include "FlickrPhotoSetController.h"

#include "Platform/Foundation/NSBundle.h"

namespace korvane {

std::shared_ptr<FlickrPhotoSetController>
FlickrPhotoSetController::initWithPhotoSetManager(const std::shared_ptr<FlickrPhotoSetManager> &manager) {
    const auto controller = std::make_shared<FlickrPhotoSetController>();
    return controller->_initWithPhotoSetManager(manager) ? controller : nullptr;
}

bool FlickrPhotoSetController::_initWithPhotoSetManager(const std::shared_ptr<FlickrPhotoSetManager> &manager) {
    if (!_initWithNibName(std::nullopt, std::nullopt)) return false;
    _manager = manager;
    _manager->refreshPhotoSets();
    _manager->setTableDelegate(sharedPointer(this));
    setTitle(NSBundle::localizedString(QStringLiteral("CHOOSE_PHOTO_SET"), QString(), QStringLiteral("Flickr")));
    return true;
}

void FlickrPhotoSetController::loadView() {
    UITableViewController::loadView();
    view()->makeTransparent();
}

void FlickrPhotoSetController::reloadData() {
    if (tableView()) tableView()->reloadData();
}

void FlickrPhotoSetController::tryAgain() {
    _manager->refreshPhotoSets();
    reloadData(); // there are no photo sets now
}

qint64 FlickrPhotoSetController::tableViewNumberOfRowsInSection(UITableView &, qint64) {
    return _manager->photoSets() ? qint64(_manager->photoSets()->size()) : 0;
}

std::shared_ptr<UITableViewCell> FlickrPhotoSetController::tableViewCellForRowAtIndexPath(UITableView &tableView,
                                                                                          NSIndexPath indexPath) {
    const QString identifier = QStringLiteral("PhotoSetCellID");
    auto cell = tableView.dequeueReusableCellWithIdentifier(identifier);
    if (!cell) cell = UITableViewCell::initWithStyle(UITableViewCellStyleDefault, identifier);
    const FlickrPhotoSet &set = _manager->photoSets().value().at(size_t(indexPath.row));
    cell->textLabel()->setText(set.title);
    if (set.identifier == _photoSetID) {
        _selectedIndexRow = indexPath.row;
        cell->setAccessoryType(UITableViewCellAccessoryCheckmark);
    } else {
        cell->setAccessoryType(UITableViewCellAccessoryNone);
    }
    return cell;
}

void FlickrPhotoSetController::tableViewWillDisplayCell(UITableView &, const std::shared_ptr<UITableViewCell> &cell,
                                                        NSIndexPath) {
    cell->makeTransparent();
}

void FlickrPhotoSetController::tableViewDidSelectRowAtIndexPath(UITableView &tableView, NSIndexPath indexPath) {
    const FlickrPhotoSet &set = _manager->photoSets().value().at(size_t(indexPath.row));
    _photoSetID = set.identifier;
    _photoSetTitle = set.title;
    if (const auto former = tableView.cellForRowAtIndexPath({_selectedIndexRow, 0}))
        former->setAccessoryType(UITableViewCellAccessoryNone);
    if (const auto chosen = tableView.cellForRowAtIndexPath(indexPath))
        chosen->setAccessoryType(UITableViewCellAccessoryCheckmark);
    tableView.deselectRowAtIndexPath(indexPath, true);
    _selectedIndexRow = indexPath.row;
    if (const auto delegate = _delegate.lock())
        delegate->flickrComposeOptionViewDidFinishWithSelection(sharedPointer(this), _photoSetID);
}

} // namespace korvane

// Option screen: who sees the photos.
#include "FlickrAudienceController.h"

#include "Platform/Foundation/KRAssert.h"
#include "Platform/Foundation/NSBundle.h"

#include <array>

namespace korvane {
namespace {

const std::array<QString, 4> titles{QStringLiteral("PUBLIC"), QStringLiteral("FRIENDS"), QStringLiteral("FAMILY"),
                                    QStringLiteral("ONLY_ME")};

QString localizedTitle(size_t row) {
    return NSBundle::localizedString(titles[row], QString(), QStringLiteral("Flickr"));
}

} // namespace

QString FlickrAudienceController::titleForAudience(qint32 audience) {
    KRAssert(quint32(audience) < titles.size(), "(int)audience < ARRAY_SIZE(titles)",
             "+[FlickrAudienceController titleForAudience:]", "FlickrAudienceController", 27);
    return localizedTitle(size_t(audience));
}

std::shared_ptr<FlickrAudienceController> FlickrAudienceController::init() {
    const auto controller = std::make_shared<FlickrAudienceController>();
    return controller->_initWithStyle(UITableViewStylePlain) ? controller : nullptr;
}

void FlickrAudienceController::loadView() {
    UITableViewController::loadView();
    view()->makeTransparent();
}

qint64 FlickrAudienceController::tableViewNumberOfRowsInSection(UITableView &, qint64) {
    return qint64(titles.size());
}

// A mark is never taken away here: the four rows are always in view and never reused for one another.
std::shared_ptr<UITableViewCell> FlickrAudienceController::tableViewCellForRowAtIndexPath(UITableView &tableView,
                                                                                          NSIndexPath indexPath) {
    const QString identifier = QStringLiteral("audienceCell");
    auto cell = tableView.dequeueReusableCellWithIdentifier(identifier);
    if (!cell) cell = UITableViewCell::initWithStyle(UITableViewCellStyleDefault, identifier);
    KRAssert(quint64(indexPath.row) < titles.size(), "row < ARRAY_SIZE(titles)",
             "-[FlickrAudienceController tableView:cellForRowAtIndexPath:]", "FlickrAudienceController", 43);
    cell->textLabel()->setText(localizedTitle(size_t(indexPath.row)));
    if (indexPath.row == _audience) cell->setAccessoryType(UITableViewCellAccessoryCheckmark);
    return cell;
}

void FlickrAudienceController::tableViewWillDisplayCell(UITableView &, const std::shared_ptr<UITableViewCell> &cell,
                                                        NSIndexPath) {
    cell->makeTransparent();
}

void FlickrAudienceController::tableViewDidSelectRowAtIndexPath(UITableView &tableView, NSIndexPath indexPath) {
    if (const auto former = tableView.cellForRowAtIndexPath({_audience, 0}))
        former->setAccessoryType(UITableViewCellAccessoryNone);
    _audience = qint32(indexPath.row);
    if (const auto chosen = tableView.cellForRowAtIndexPath(indexPath))
        chosen->setAccessoryType(UITableViewCellAccessoryCheckmark);
    tableView.deselectRowAtIndexPath(indexPath, true);
    if (const auto delegate = _delegate.lock())
        delegate->flickrComposeOptionViewDidFinishWithSelection(sharedPointer(this), quint32(_audience));
}

// As high as its rows, so that the sheet shows all of them.
CGSize FlickrAudienceController::preferredContentSize() {
    return {0, tableView() ? tableView()->rectForSection(0).height() : 0};
}

} // namespace korvane

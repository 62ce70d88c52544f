// The accounts of one service as the rows of a list.
#include "ShareSheet/AccountsModel.h"

#include "FrontEnd/UploadText.h"
#include "Platform/Foundation/Folders.h"
#include "ShareSheet/Background.h"

namespace korvane {

AccountsModel::AccountsModel(ACAccountType type, QObject *parent)
    : QAbstractListModel(parent), _type(std::move(type)), _watch(configFolder() + QStringLiteral("/accounts.json")) {
    connect(&_watch, &FileWatch::changed, this, &AccountsModel::reload);
    reload();
}

int AccountsModel::rowCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : int(_rows.size());
}

QHash<int, QByteArray> AccountsModel::roleNames() const {
    return {{IDRole, "accountID"}, {UsernameRole, "username"}, {InUseRole, "isInUse"}};
}

QVariant AccountsModel::data(const QModelIndex &index, int role) const {
    if (!index.isValid() || index.row() >= rowCount()) return {};
    const Row &row = _rows[size_t(index.row())];
    switch (role) {
    case IDRole:
        return row.id;
    case Qt::DisplayRole:
    case UsernameRole:
        return UploadText::brief(row.username);
    case InUseRole:
        return index.row() == rowCount() - 1;
    default:
        return {};
    }
}

void AccountsModel::reload() {
    std::vector<Row> rows;
    std::optional<NSError> error;
    for (const auto &account : ACAccountStore().accountsWithAccountType(_type, &error))
        rows.push_back({account->identifier(), account->username()});
    _setProblem(_problem, error ? error->localizedDescription() : QString());
    if (rows == _rows) return;
    beginResetModel();
    _rows = std::move(rows);
    endResetModel();
    Q_EMIT changed();
}

void AccountsModel::use(const QString &accountID) {
    _change([accountID](std::optional<NSError> *error) { return ACAccountStore().useAccount(accountID, error); });
}

void AccountsModel::remove(const QString &accountID) {
    _change([accountID](std::optional<NSError> *error) { return ACAccountStore().removeAccount(accountID, error); });
}

void AccountsModel::_change(std::function<bool(std::optional<NSError> *error)> work) {
    _setProblem({}, _listProblem);
    inBackground(this, [this, work = std::move(work)]() -> std::function<void()> {
        std::optional<NSError> error;
        const bool done = work(&error);
        return [this, done, error] {
            if (!done) _setProblem(error->localizedDescription(), _listProblem);
            reload();
        };
    });
}

void AccountsModel::_setProblem(const QString &problem, const QString &listProblem) {
    const QString before = AccountsModel::problem();
    _problem = problem;
    _listProblem = listProblem;
    if (AccountsModel::problem() != before) Q_EMIT problemChanged();
}

} // namespace korvane

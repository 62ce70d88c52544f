// The accounts of one service as the rows of a list.
#pragma once

#include "Platform/Accounts/ACAccountStore.h"
#include "ShareSheet/FileWatch.h"

#include <QAbstractListModel>

#include <functional>

namespace korvane {

// Follows what other programs do to the list. Storing and removing wait for the keyring elsewhere. Thread: main.
class AccountsModel : public QAbstractListModel {
    Q_OBJECT
    Q_PROPERTY(int count READ rowCount NOTIFY changed)
    Q_PROPERTY(QString problem READ problem NOTIFY problemChanged)

public:
    enum Role { IDRole = Qt::UserRole + 1, UsernameRole, InUseRole };

    explicit AccountsModel(ACAccountType type, QObject *parent = nullptr);

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;
    // Why the list cannot be read, or what went wrong last, for people.
    QString problem() const { return _listProblem.isEmpty() ? _problem : _listProblem; }

    // Posts go out with it from now on.
    Q_INVOKABLE void use(const QString &accountID);
    // With its credential.
    Q_INVOKABLE void remove(const QString &accountID);
    void reload();

Q_SIGNALS:
    void changed();
    void problemChanged();

private:
    struct Row {
        QString id;
        QString username;
        friend bool operator==(const Row &, const Row &) = default;
    };
    void _change(std::function<bool(std::optional<NSError> *error)> work);
    void _setProblem(const QString &problem, const QString &listProblem);

    const ACAccountType _type;
    std::vector<Row> _rows; // in the list's order: the last is in use
    QString _problem;
    QString _listProblem;
    FileWatch _watch;
};

} // namespace korvane

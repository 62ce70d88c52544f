// A table as a list for the window.
#pragma once

#include "Platform/UIKit/UITableViewController.h"
#include "ShareSheet/EditTarget.h"

#include <QAbstractListModel>

namespace korvane {

// Rows of all sections one after another. Only rows that showRows() names have contents; their cells are made then.
class TableModel : public QAbstractListModel, public EditTarget {
    Q_OBJECT
    Q_PROPERTY(int count READ count NOTIFY countChanged)
    Q_PROPERTY(QString problem READ problem NOTIFY problemChanged) // why rows could not be loaded; empty if they could
public:
    enum Role {
        TextRole = Qt::UserRole + 1,
        SectionRole,    // its number
        KindRole,       // "text", "field" (one line is typed) or "textView" (several lines are typed)
        EditedTextRole, // of the field or the text view
        IsEditingRole,  // has the keyboard
        IsCheckedRole,
        IsSelectableRole,
        HeightRole, // in usual rows
    };

    explicit TableModel(std::shared_ptr<UITableViewController> screen, QObject *parent = nullptr);
    ~TableModel() override;

    int count() const;
    QString problem() const;
    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    Q_INVOKABLE QString headerOf(int section) const; // empty if there is none
    // The rows that stand in the window now, wholly or in part.
    Q_INVOKABLE void showRows(int first, int last);
    Q_INVOKABLE void select(int row);
    Q_INVOKABLE void tryAgain() { _screen->tryAgain(); } // after a problem

    QString editedText(int row) const override;
    bool userReplaces(int row, NSRange range, const QString &replacement) override;
    void userBeginsEditing(int row) override;
    void userEndsEditing(int row) override;
    void userPressesReturn(int row) override;

Q_SIGNALS:
    void countChanged();
    void problemChanged();
    // The table has scrolled by itself, to these rows.
    void scrolledTo(int first, int last);

private:
    class Observer;

    NSIndexPath _pathOf(int row) const;
    int _rowOf(NSIndexPath path) const; // -1 where there is none
    std::shared_ptr<UITableViewCell> _cell(int row) const;
    std::shared_ptr<UIView> _editor(int row) const;
    void _insertRow(NSIndexPath path);
    void _removeRow(NSIndexPath path);
    void _reload();

    std::shared_ptr<UITableViewController> _screen;
    std::shared_ptr<UITableView> _table;
    std::shared_ptr<Observer> _observer;
    std::vector<int> _rowsOfSections; // as the window knows them
};

} // namespace korvane

// What is shared, from the files that were given to the attachments of the sheet.
#pragma once

#include "Platform/Social/SLAttachment.h"
#include "ShareSheet/SharedFile.h"

#include <QAbstractListModel>

#include <vector>

namespace korvane {

// Attachments are made one after another on the global queue, and stay in the order of the files.
class AttachmentsModel : public QAbstractListModel {
    Q_OBJECT
    Q_PROPERTY(int count READ count NOTIFY changed)
    Q_PROPERTY(int usableCount READ usableCount NOTIFY changed) // those of which nothing bad is known
    Q_PROPERTY(bool isPreparing READ isPreparing NOTIFY changed)
    Q_PROPERTY(bool isVideo READ isVideo CONSTANT)
    Q_PROPERTY(QString problems READ problems NOTIFY changed) // a line for each of the first files that cannot be used
public:
    enum class Kind { Photos, Video };
    enum Role { NameRole = Qt::UserRole + 1, ThumbnailRole, ProblemRole };

    // Of several videos the first is taken.
    AttachmentsModel(Kind kind, const QByteArrayList &arguments, QObject *parent = nullptr);

    // Begins to make the attachments. Once.
    void start();
    // Whether all that was given can be handed over. Files that cannot be used hold it back until they are left out.
    bool isReady() const { return !isPreparing() && usableCount() == count() && count() > 0; }
    std::vector<SLAttachment> attachments() const;

    int count() const { return int(_entries.size()); }
    int usableCount() const;
    bool isPreparing() const { return _prepared < _entries.size(); }
    bool isVideo() const { return _kind == Kind::Video; }
    QString problems() const;
    Q_INVOKABLE void leaveProblemsOut();
    // Makes the attachments anew, for files that have changed meanwhile.
    void lookAgain();

    int rowCount(const QModelIndex &parent = {}) const override { return parent.isValid() ? 0 : count(); }
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    void changed();

private:
    struct Entry {
        SharedFile file;
        std::optional<SLAttachment> attachment;
    };

    static void _prepare(Entry &entry, bool isVideo); // on any thread
    void _prepareSome();
    void _arrived(const std::vector<Entry> &entries);

    const Kind _kind;
    std::vector<Entry> _entries;
    size_t _prepared = 0; // so many, from the first, are made or known to be unusable
    bool _isStarted = false;
};

} // namespace korvane

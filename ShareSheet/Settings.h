// The settings page: accounts and preferences.
#pragma once

#include "ShareSheet/FileWatch.h"
#include "ShareSheet/ServiceAccess.h"

#include <QList>

namespace korvane {

// What is set is written at once, and what other programs set is followed. Thread: main.
class Settings : public QObject {
    Q_OBJECT
    Q_PROPERTY(korvane::ServiceAccess *flickr READ flickr CONSTANT)
    Q_PROPERTY(korvane::ServiceAccess *vimeo READ vimeo CONSTANT)
    Q_PROPERTY(QList<int> flickrParallelChoices READ flickrParallelChoices CONSTANT)
    Q_PROPERTY(QList<int> vimeoParallelChoices READ vimeoParallelChoices CONSTANT)
    Q_PROPERTY(int flickrParallelUploads READ flickrParallelUploads WRITE setFlickrParallelUploads NOTIFY changed)
    Q_PROPERTY(int vimeoParallelUploads READ vimeoParallelUploads WRITE setVimeoParallelUploads NOTIFY changed)
    Q_PROPERTY(int displayImageMaxPixels READ displayImageMaxPixels WRITE setDisplayImageMaxPixels NOTIFY changed)
    Q_PROPERTY(bool uploadsOverCellular READ uploadsOverCellular WRITE setUploadsOverCellular NOTIFY changed)
    Q_PROPERTY(QString problem READ problem NOTIFY changed)

public:
    explicit Settings(QObject *parent = nullptr);

    ServiceAccess *flickr() { return &_flickr; }
    ServiceAccess *vimeo() { return &_vimeo; }

    // The numbers to choose from.
    QList<int> flickrParallelChoices() const;
    QList<int> vimeoParallelChoices() const;

    int flickrParallelUploads() const;
    int vimeoParallelUploads() const;
    int displayImageMaxPixels() const; // 0: they keep their size
    bool uploadsOverCellular() const;
    void setFlickrParallelUploads(int count);
    void setVimeoParallelUploads(int count);
    void setDisplayImageMaxPixels(int pixels);
    void setUploadsOverCellular(bool allowed);
    QString problem() const { return _problem; } // why the last change was not written

Q_SIGNALS:
    void changed();

private:
    void _told(bool isWritten);

    ServiceAccess _flickr;
    ServiceAccess _vimeo;
    QString _problem;
    FileWatch _watch;
};

} // namespace korvane

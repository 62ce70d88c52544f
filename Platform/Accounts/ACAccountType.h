// The kind of an account: the web service it belongs to.
#pragma once

#include <QString>

namespace korvane {

extern const QString ACAccountTypeIdentifierFlickr;
extern const QString ACAccountTypeIdentifierVimeo;

class ACAccountType {
public:
    explicit ACAccountType(QString identifier) : _identifier(std::move(identifier)) {}

    const QString &identifier() const { return _identifier; }
    // False for a type that no web service of ours has; accounts of it cannot be saved.
    bool isKnown() const;
    // "Flickr" or "Vimeo", for people; empty for a type that is not known.
    QString serviceName() const;

    friend bool operator==(const ACAccountType &, const ACAccountType &) = default;

private:
    QString _identifier;
};

} // namespace korvane

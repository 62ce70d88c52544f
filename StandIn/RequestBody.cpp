#include "StandIn/RequestBody.h"

namespace standin {

namespace {

constexpr qint64 LongestText = 4 * 1024 * 1024; // of all parameters together

} // namespace

RequestBody::RequestBody(const QByteArray &contentType, std::unique_ptr<IncomingPhoto> photo, qint64 photoLimit)
    : _photo(std::move(photo)), _photoLimit(photoLimit) {
    const QByteArray type = contentType.split(';').first().trimmed().toLower();
    _isForm = type == "application/x-www-form-urlencoded";
    if (const auto boundary = MultipartReader::boundaryOf(contentType))
        _multipart.emplace(*boundary, static_cast<PartReceiver &>(*this));
    else if (!_isForm)
        _refuse("the body is neither a form nor multipart/form-data with a boundary");
}

void RequestBody::feed(const char *data, qsizetype size) {
    if (_multipart) {
        _multipart->feed(data, size);
        return;
    }
    if (_form.size() + size > LongestText) _refuse("the form is too long");
    if (_refusal.isEmpty()) _form.append(data, size);
}

void RequestBody::finish() {
    if (_multipart) _multipart->finish();
    if (_isForm) _parameters = decodedForm(_form);
}

QByteArray RequestBody::error() const {
    return _multipart ? _multipart->error() : _refusal;
}

void RequestBody::note(Request &record) const {
    record.parameters += _parameters;
    if (!_photoHeader) return;
    record.photoContentType = _photoHeader->contentType;
    record.photoFileName = _photoHeader->fileName.value_or(QByteArray());
    record.photoBytes = _photo->bytes();
}

bool RequestBody::partBegan(const PartHeader &header) {
    _part = header;
    _partText = QByteArray("");
    if (header.name != "photo") return true;
    if (_photoHeader) return _refuse("there are two photos");
    if (!_photo) return _refuse("there is a photo where none belongs");
    _photoHeader = header;
    return true;
}

bool RequestBody::partData(const char *data, qsizetype size) {
    if (_part.name == "photo") {
        if (!_photo->write(data, size, _photoLimit)) _diskRefused = true;
        return true;
    }
    _textBytes += size;
    if (_textBytes > LongestText) return _refuse("the text parts are too long");
    _partText.append(data, size);
    return true;
}

bool RequestBody::partEnded() {
    if (_part.name == "photo")
        _photoComplete = !_diskRefused;
    else
        _parameters.append({_part.name, _partText});
    return true;
}

bool RequestBody::_refuse(const QByteArray &reason) {
    _refusal = reason;
    return false;
}

} // namespace standin

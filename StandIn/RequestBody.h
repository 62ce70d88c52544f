// The body of a service request: parameters from a form or from multipart text parts, and at most one photo.
#pragma once

#include "StandIn/BodyReader.h"
#include "StandIn/IncomingPhoto.h"
#include "StandIn/MultipartReader.h"
#include "StandIn/Parameters.h"

#include <memory>
#include <optional>

namespace standin {

// Thread: one at a time.
class RequestBody final : public BodyReader, private PartReceiver {
public:
    // Without a place for it, a photo is refused.
    RequestBody(const QByteArray &contentType, std::unique_ptr<IncomingPhoto> photo, qint64 photoLimit = 0);

    void feed(const char *data, qsizetype size) override;
    void finish() override;
    QByteArray error() const override;
    void note(Request &record) const override;
    QByteArray photoSha256() override { return _photoComplete ? _photo->sha256() : QByteArray(); }

    const Parameters &parameters() const { return _parameters; }
    // The header of the part "photo", once it began.
    const std::optional<PartHeader> &photoHeader() const { return _photoHeader; }
    IncomingPhoto *photo() const { return _photo.get(); }
    bool photoIsTooLarge() const { return _photo && _photo->bytes() > _photoLimit; }
    bool diskRefused() const { return _diskRefused; }

private:
    bool partBegan(const PartHeader &header) override;
    bool partData(const char *data, qsizetype size) override;
    bool partEnded() override;
    QByteArray refusal() const override { return _refusal; }
    bool _refuse(const QByteArray &reason);

    std::unique_ptr<IncomingPhoto> _photo;
    const qint64 _photoLimit;
    std::optional<MultipartReader> _multipart;
    bool _isForm = false;
    QByteArray _form;
    Parameters _parameters;
    PartHeader _part;
    QByteArray _partText;
    qint64 _textBytes = 0;
    std::optional<PartHeader> _photoHeader;
    bool _photoComplete = false;
    bool _diskRefused = false;
    QByteArray _refusal;
};

} // namespace standin

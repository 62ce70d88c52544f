// One video to be published to Vimeo: the export of a library video, and the network it may go over.
#include "Korvane/VimeoPost.h"

#include "Korvane/KRLog.h"
#include "Platform/Accounts/ACAccount.h"
#include "Platform/AssetsLibrary/ALAssetsLibrary.h"
#include "Platform/Foundation/DispatchTimer.h"
#include "Platform/Foundation/Folders.h"
#include "Platform/SystemConfiguration/SCNetworkReachability.h"

#include <QDateTime>
#include <QFile>

#include <netinet/in.h>

namespace korvane {
namespace {

using namespace std::chrono_literals;

std::optional<QString> exportPreset(qint64 videoSize) {
    switch (videoSize) {
    case VimeoVideoSizeLarge:
        return AVAssetExportPresetHighestQuality;
    case VimeoVideoSizeMedium:
        return AVAssetExportPresetMediumQuality;
    case VimeoVideoSizeSmall:
        return AVAssetExportPresetLowQuality;
    default:
        return std::nullopt;
    }
}

} // namespace

bool VimeoPost::_isUsingCellular() {
    static const SCNetworkReachabilityRef defaultRoute = [] {
        sockaddr_in address{};
        address.sin_family = AF_INET;
        return SCNetworkReachabilityCreateWithAddress(reinterpret_cast<const sockaddr *>(&address));
    }();
    SCNetworkReachabilityFlags flags = 0;
    if (!SCNetworkReachabilityGetFlags(defaultRoute, &flags)) {
        NSLog("Error: could not retrieve SCNetworkReachability flags");
        return false;
    }
    return flags & kSCNetworkReachabilityFlagsIsWWAN;
}

void VimeoPost::_exportVideo() {
    const QString folder = temporaryDirectory.isEmpty() ? NSTemporaryDirectory() : temporaryDirectory;
    const QString name = QStringLiteral("Vimeo-Export-%1.mp4").arg(QDateTime::currentSecsSinceEpoch());
    const NSURL outputURL = NSURL::fileURLWithPath(QFile::encodeName(folder + u'/' + name));
    exportedVideoURL = outputURL;
    const auto session = ALAssetsLibrary::_exportSessionForVideoURL(*assetURL, std::nullopt, exportPreset(videoSize));
    session->setOutputFileType(AVFileTypeMPEG4);
    session->setOutputURL(outputURL);
    session->setUploadContext(account->uploadContext());
    session->exportAsynchronouslyWithCompletionHandler(
        [self = shared_from_this(), session, outputURL] { self->_exportEnded(session, outputURL); });
    _watchExport(session);
}

void VimeoPost::_exportEnded(const std::shared_ptr<AVAssetExportSession> &session, const NSURL &outputURL) {
    if (const auto error = session->error()) {
        NSLog("########### Error exporting video: %@", error);
        return failWithError(*error);
    }
    NSLog("########### Video Exported to %@", outputURL);
    std::optional<NSError> error;
    dataReader = KRDataReader::dataReaderWithURL(outputURL, &error);
    if (error) return failWithError(*error);
    _proceedAfterCheckpoint([self = shared_from_this()] { self->_checkQuota(); });
}

void VimeoPost::_watchExport(const std::shared_ptr<AVAssetExportSession> &session) {
    _exportTimer = std::make_shared<DispatchTimer>(10s, 2s, [session] {
        KRLog("Export progress: %f", session->progress());
        const auto status = session->status();
        return status == AVAssetExportSessionStatusWaiting || status == AVAssetExportSessionStatusExporting;
    });
}

} // namespace korvane

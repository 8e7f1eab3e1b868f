#pragma once

#include "platform/pictures.hpp"

#include <QDateTime>
#include <QImage>

#include <list>

namespace quittika {

/// The one place that decodes picture files. What was decoded last is kept while its file stays as it is.
/// Needs a `QGuiApplication`.
class QtPictures final : public Pictures {
public:
    PictureSize check(const std::string& path) override;
    /// The picture as it is shown: turned where the camera was, and reduced where it has more pixels than a
    /// sheet has room for. Throws as `check` does.
    QImage image(const std::string& path);

private:
    struct Kept {
        std::string path;
        QDateTime changed;
        qint64 bytes;
        PictureSize size; ///< before it was reduced
        QImage image;
    };

    const Kept& find(const std::string& path);
    QImage decoded(const std::string& path);
    void make_room(qint64 bytes);

    std::list<Kept> kept_; ///< the one used last is in front
};

} // namespace quittika

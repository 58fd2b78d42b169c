// SPDX-License-Identifier: MIT
#pragma once

#include <QPixmap>
#include <QSize>
#include <QString>

/// A picture by its file, which is read when it is first drawn, and again for another size. The file is
/// NAME.svg, or NAME.png where no SVG can be read; without either the picture is blank, and nothing is
/// reported.
class PictureReference {
  public:
    PictureReference() = default;
    PictureReference(const QString& folder, const QString& name) : m_path(folder + u'/' + name) {}

    /// `size` in logical pixels, `ratio` device pixels each. Null without a file.
    QPixmap pixmap(QSize size, qreal ratio) const;

  private:
    QString m_path;
    mutable QPixmap m_read;
    mutable QSize m_readSize;  ///< in device pixels
};

// The picture that Photo Tool shows until one is opened.

#ifndef PHOTO_TOOL_SAMPLEPICTURE_H
#define PHOTO_TOOL_SAMPLEPICTURE_H

#include <QImage>
#include <QSize>

/// A lake between mountains in the early morning.
QImage samplePicture(QSize size = {1600, 1000});

#endif

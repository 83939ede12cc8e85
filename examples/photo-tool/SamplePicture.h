// The picture that Photo Tool shows until one is opened, and its icon.

#ifndef PHOTO_TOOL_SAMPLEPICTURE_H
#define PHOTO_TOOL_SAMPLEPICTURE_H

#include <QIcon>
#include <QImage>
#include <QSize>

/// A lake between mountains in the early morning.
QImage samplePicture(QSize size = {1600, 1000});

/// The same lake with round corners.
QIcon applicationIcon();

#endif

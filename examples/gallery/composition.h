#pragma once

#include "edits.h"

#include <QtCore/QVector>

// The picture with its adjustment, the layer on it and the mask over both, as shown and
// saved. The same function paints window and file.
class Composition
{
public:
    Composition();

    void setPicture(const QImage &picture);
    QSize size() const { return m_levels.constFirst().size(); }
    // Of the picture reduced by the scale, which is 1 at most.
    QSize size(double scale) const;
    bool hasAlpha() const { return m_levels.constFirst().hasAlphaChannel(); }

    // Paints only a part, given in pixels of the picture reduced by the scale.
    QImage painted(const Edits &edits, const QRect &part, double scale = 1);

private:
    QImage reduced(const QRect &part, double scale) const;
    void paintLayer(QImage &image, const QRect &layer) const;

    QVector<QImage> m_levels; // the picture, and each half as large as the one before
    const QImage m_layer;
    // The last part before its edits: often many edits of one part follow each other.
    QImage m_source;
    QRect m_part;
    double m_scale = 0;
};

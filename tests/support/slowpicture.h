// A picture that takes longer than a frame to decode.
#pragma once

#include <QBuffer>
#include <QByteArray>
#include <QImage>

#include <gtest/gtest.h>

inline QByteArray slowPng()
{
    QImage image(8192, 4096, QImage::Format_Grayscale8);
    image.fill(255);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    EXPECT_TRUE(image.save(&buffer, "png"));
    return bytes;
}

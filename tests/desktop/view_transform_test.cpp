// Pan, zoom and fit.
#include "desktop/view_transform.h"

#include <gtest/gtest.h>

namespace zwt::test {
namespace {

ViewTransform Window() {
  ViewTransform view;
  view.SetSize({800, 600});
  return view;
}

TEST(ViewTransform, FittedPartStandsInTheMiddleWithAMargin) {
  ViewTransform view = Window();
  view.Fit(QRectF(QPointF(1000, 2000), QPointF(5000, 4000)));
  EXPECT_EQ(view.ToPixel(3000, 3000), QPointF(400, 300));
  EXPECT_DOUBLE_EQ(view.Scale(), 0.92 * 800 / 4000);
  EXPECT_TRUE(view.Shown().contains(QRectF(QPointF(1000, 2000), QPointF(5000, 4000))));
}

TEST(ViewTransform, HighPartIsFittedByItsHeight) {
  ViewTransform view = Window();
  view.Fit(QRectF(0, 0, 0, 3000));
  EXPECT_DOUBLE_EQ(view.Scale(), 0.92 * 600 / 3000);
  EXPECT_EQ(view.ToPixel(0, 1500), QPointF(400, 300));
}

TEST(ViewTransform, PartWithoutExtentKeepsTheScale) {
  ViewTransform view = Window();
  const double scale = view.Scale();
  view.Fit(QRectF(7, 9, 0, 0));
  EXPECT_EQ(view.Scale(), scale);
  EXPECT_EQ(view.ToPixel(7, 9), QPointF(400, 300));
}

TEST(ViewTransform, YPointsUpwards) {
  const ViewTransform view = Window();
  EXPECT_GT(view.ToPixel(0, 0).y(), view.ToPixel(0, 100).y());
  EXPECT_LT(view.ToPixel(0, 0).x(), view.ToPixel(100, 0).x());
}

TEST(ViewTransform, WhatLiesUnderThePointerStaysThereWhileZooming) {
  ViewTransform view = Window();
  view.Fit(QRectF(0, 0, 4000, 4000));
  const QPointF pixel(123, 456);
  const QPointF place = view.ToPlace(pixel);
  view.ZoomAt(pixel, 1.25);
  EXPECT_NEAR(view.ToPixel(place).x(), 123, 1e-9);
  EXPECT_NEAR(view.ToPixel(place).y(), 456, 1e-9);
  view.ZoomAt(pixel, 1 / 1.25);
  EXPECT_NEAR(view.ToPixel(place).x(), 123, 1e-9);
}

TEST(ViewTransform, PanMovesTheDrawingWithThePointer) {
  ViewTransform view = Window();
  const QPointF place = view.ToPlace({100, 100});
  view.Pan({30, -20});
  EXPECT_NEAR(view.ToPixel(place).x(), 130, 1e-9);
  EXPECT_NEAR(view.ToPixel(place).y(), 80, 1e-9);
}

TEST(ViewTransform, ScaleStaysWithinItsBounds) {
  ViewTransform view = Window();
  for (int i = 0; i < 500; ++i) view.ZoomAt({0, 0}, 2);
  EXPECT_EQ(view.Scale(), 1e5);
  for (int i = 0; i < 500; ++i) view.ZoomAt({0, 0}, 0.5);
  EXPECT_EQ(view.Scale(), 1e-8);
}

}  // namespace
}  // namespace zwt::test

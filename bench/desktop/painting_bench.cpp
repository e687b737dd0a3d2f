// Looking at a drawing of 100,000 entities in a window of 1600 by 1000 pixels: a frame while panning, and how
// long after a zoom the picture is sharp again; on a screen in memory.
#include <QApplication>
#include <QImage>

#include <benchmark/benchmark.h>

#include "desktop/picture_cache.h"
#include "pipe_field.h"

namespace {

constexpr int kWidth = 1600;
constexpr int kHeight = 1000;
const QColor kGround(0x21, 0x28, 0x30);

/// The toolkit must stand before anything is painted.
void StartToolkit() {
  static int count = 1;
  static char name[] = "bench";
  static char* names[] = {name, nullptr};
  qputenv("QT_QPA_PLATFORM", "offscreen");
  static const QApplication application(count, names);
}

/// The field, a tenth of it with a text each where they are asked for.
std::shared_ptr<const zwt::DisplayList> Picture(bool withTexts) {
  auto list = std::make_shared<zwt::DisplayList>(zwt::MakeDisplayList(pipe_field::Field()));
  for (int i = 0; withTexts && i < pipe_field::kRows * pipe_field::kRows; i += 10) {
    zwt::DisplayText text;
    text.text = L"DN" + std::to_wstring(15 + i % 85);
    text.height = 350;
    text.position = list->points[list->strokes[static_cast<std::size_t>(i)].first];
    list->texts.push_back(text);
  }
  return list;
}

/// A window on a field, seen as a whole or from nearer.
struct Window {
  Window(bool withTexts, double zoom) {
    StartToolkit();
    const auto list = Picture(withTexts);
    cache = std::make_unique<zwt::PictureCache>(kGround);
    cache->SetContent(list, zwt::ShownLayers(*list));
    view.SetSize(QSizeF(kWidth, kHeight));
    view.Fit(QRectF(0, 0, pipe_field::kSide, pipe_field::kSide));
    view.ZoomAt(QPointF(kWidth / 2.0, kHeight / 2.0), zoom);
    Paint();
    cache->Finish();
  }

  void Paint() {
    QPainter painter(&screen);
    painter.fillRect(screen.rect(), kGround);
    cache->Paint(painter, view);
  }

  zwt::ViewTransform view;
  std::unique_ptr<zwt::PictureCache> cache;
  QImage screen{kWidth, kHeight, QImage::Format_RGB32};
};

void FrameWhilePanning(benchmark::State& state) {
  Window window(false, 1);
  double way = 7;
  for ([[maybe_unused]] auto _ : state) {
    window.view.Pan(QPointF(way, 0));
    way = -way;
    window.Paint();
  }
}
BENCHMARK(FrameWhilePanning)->Unit(benchmark::kMillisecond);

/// From the frame that shows a new zoom to the sharp picture of it.
void SharpAfterAZoom(benchmark::State& state) {
  Window window(state.range(0) != 0, static_cast<double>(state.range(1)));
  double factor = 1.01;
  for ([[maybe_unused]] auto _ : state) {
    window.view.ZoomAt(QPointF(800, 500), factor);
    factor = 1 / factor;
    window.Paint();
    window.cache->Finish();
    window.Paint();
    if (!window.cache->IsSharp()) state.SkipWithError("the picture is not sharp");
  }
}
BENCHMARK(SharpAfterAZoom)
    ->ArgNames({"texts", "zoom"})
    ->ArgsProduct({{0, 1}, {1, 2, 4, 8}})
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();

void ListOfTheDrawing(benchmark::State& state) {
  for ([[maybe_unused]] auto _ : state) benchmark::DoNotOptimize(zwt::MakeDisplayList(pipe_field::Field()));
}
BENCHMARK(ListOfTheDrawing)->Unit(benchmark::kMillisecond);

}  // namespace

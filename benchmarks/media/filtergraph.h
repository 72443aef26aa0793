#pragma once

#ifdef ZORV_BENCH_AVFILTER

#include <QImage>

extern "C" {
#include <libavfilter/avfilter.h>
#include <libavfilter/buffersink.h>
#include <libavfilter/buffersrc.h>
#include <libavutil/frame.h>
#include <libavutil/pixfmt.h>
}

/// A filter of ffmpeg for pictures of 32 bits, in one thread.
class FilterGraph
{
public:
    FilterGraph(const QImage& image, const char* filter, int factor)
        : graph(avfilter_graph_alloc()), input(av_frame_alloc()), output(av_frame_alloc())
    {
        graph->nb_threads = 1;
        const QByteArray arguments = "video_size=" + QByteArray::number(image.width()) + 'x' +
                                     QByteArray::number(image.height()) +
                                     ":pix_fmt=" + QByteArray::number(AV_PIX_FMT_RGB32) +
                                     ":time_base=1/60";
        AVFilterContext* scale = nullptr;
        ok = create(&source, "buffer", arguments) &&
             create(&scale, filter, "n=" + QByteArray::number(factor)) &&
             create(&sink, "buffersink", {}) && avfilter_link(source, 0, scale, 0) >= 0 &&
             avfilter_link(scale, 0, sink, 0) >= 0 && avfilter_graph_config(graph, nullptr) >= 0;
        input->format = AV_PIX_FMT_RGB32;
        input->width = image.width();
        input->height = image.height();
        ok = ok && av_frame_get_buffer(input, 0) >= 0;
        for (int y = 0; ok && y < image.height(); ++y) {
            memcpy(input->data[0] + y * input->linesize[0], image.constScanLine(y),
                   std::size_t(image.width()) * 4);
        }
    }
    ~FilterGraph()
    {
        av_frame_free(&input);
        av_frame_free(&output);
        avfilter_graph_free(&graph);
    }

    bool isValid() const { return ok; }

    /// One run; its result stays until the next one.
    bool run()
    {
        av_frame_unref(output);
        return av_buffersrc_add_frame_flags(source, input, AV_BUFFERSRC_FLAG_KEEP_REF) >= 0 &&
               av_buffersink_get_frame(sink, output) >= 0;
    }

    QImage result() const
    {
        return QImage(output->data[0], output->width, output->height, output->linesize[0],
                      QImage::Format_ARGB32)
            .copy();
    }

private:
    Q_DISABLE_COPY(FilterGraph)

    bool create(AVFilterContext** context, const char* name, const QByteArray& arguments)
    {
        const AVFilter* filter = avfilter_get_by_name(name);
        return filter && avfilter_graph_create_filter(context, filter, name, arguments.constData(),
                                                      nullptr, graph) >= 0;
    }

    AVFilterGraph* graph;
    AVFrame* input;
    AVFrame* output;
    AVFilterContext* source = nullptr;
    AVFilterContext* sink = nullptr;
    bool ok = false;
};

#endif

#include <kes/cv/pixels.h>

#include <opencv2/core.hpp>
#include <opencv2/core/utility.hpp>
#include <opencv2/imgproc.hpp>

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <exception>
#include <initializer_list>
#include <vector>

#if defined(__x86_64__) || defined(__i386__)
#define KES_CV_PIXELS_X86 1
#include <immintrin.h>
#endif

namespace kes::cv::pixels {

namespace {

// Every primitive is one channel mapping: destination channel i takes source channel order[i],
// or the fill value where order[i] is negative. On four pixels (16 bytes at most either way) that
// is a byte shuffle followed by an OR with the fill bytes.
struct Mapping
{
    int srcChannels = 0;
    int dstChannels = 0;
    int order[4] = {0, 0, 0, 0};
    std::uint8_t fill = 0;
};

struct LaneMasks
{
    std::uint8_t shuffle[16];
    std::uint8_t fill[16];
};

LaneMasks laneMasks(const Mapping& m)
{
    LaneMasks masks{};
    for (int j = 0; j < 16; ++j) {
        masks.shuffle[j] = 0x80; // zero: a byte past the four pixels, or a filled channel
        if (j >= 4 * m.dstChannels)
            continue;
        const int source = m.order[j % m.dstChannels];
        if (source < 0)
            masks.fill[j] = m.fill;
        else
            masks.shuffle[j] = std::uint8_t(j / m.dstChannels * m.srcChannels + source);
    }
    return masks;
}

bool validStride(std::size_t step, int channels, int width)
{
    return step >= std::size_t(channels) * std::size_t(width);
}

bool validChannels(int channels)
{
    return channels >= 1 && channels <= 4;
}

bool isMapping(const Mapping& m, int s, int d, std::initializer_list<int> order)
{
    return m.srcChannels == s && m.dstChannels == d && std::equal(order.begin(), order.end(), m.order);
}

// The mappings the image conversions use, as OpenCV's own optimised colour conversions; -1 for the
// others. They fill with 255 only.
int colorConversionCode(const Mapping& m)
{
    const bool opaque = m.fill == 255;
    if (opaque && isMapping(m, 3, 4, {0, 1, 2, -1}))
        return ::cv::COLOR_BGR2BGRA;
    if (opaque && isMapping(m, 3, 4, {2, 1, 0, -1}))
        return ::cv::COLOR_RGB2BGRA;
    if (opaque && isMapping(m, 1, 4, {0, 0, 0, -1}))
        return ::cv::COLOR_GRAY2BGRA;
    if (isMapping(m, 4, 3, {0, 1, 2}))
        return ::cv::COLOR_BGRA2BGR;
    return -1;
}

// OpenCV, for processors without the vector path: its colour conversions where they fit, its
// channel mixer otherwise. In place, the source is copied first, since the mixer reads and writes
// pixel by pixel.
bool runOpenCv(const std::uint8_t* src, std::size_t srcStep, std::uint8_t* dst, std::size_t dstStep,
               int width, int height, const Mapping& m)
{
    try {
        const ::cv::Mat in(height, width, CV_8UC(m.srcChannels), const_cast<std::uint8_t*>(src), srcStep);
        ::cv::Mat out(height, width, CV_8UC(m.dstChannels), dst, dstStep);
        const int code = src == dst ? -1 : colorConversionCode(m);
        if (code >= 0) {
            ::cv::cvtColor(in, out, code);
        } else if (m.fill == 255 && isMapping(m, 4, 4, {0, 1, 2, -1})) {
            ::cv::bitwise_or(in, ::cv::Scalar(0, 0, 0, 255), out); // the pad byte made opaque
        } else {
            std::vector<::cv::Mat> inputs{src == dst ? in.clone() : in};
            std::vector<int> pairs;
            for (int i = 0; i < m.dstChannels; ++i) {
                if (m.order[i] < 0 && inputs.size() == 1)
                    inputs.emplace_back(height, width, CV_8UC1, ::cv::Scalar::all(m.fill));
                pairs.push_back(m.order[i] < 0 ? m.srcChannels : m.order[i]);
                pairs.push_back(i);
            }
            ::cv::mixChannels(inputs.data(), inputs.size(), &out, 1, pairs.data(), pairs.size() / 2);
        }
        // OpenCV reallocates a destination it does not like; the pixels would then not be ours.
        return out.data == dst;
    } catch (const std::exception&) {
        return false;
    }
}

#ifdef KES_CV_PIXELS_X86

// Eight pixels per step: each 128-bit lane shuffles four of them. The source pixels are spread
// over the lanes before the shuffle and the results closed up after it, both by 32-bit words,
// which suffices because four pixels of n bytes are n words. Exactly 8 * D bytes are stored, so
// the destination is never written past its pixels; loads read up to 32 bytes and stay within
// the row by the loop bound, the row's last pixels going through a buffer.
// Word k of the closed-up result: the lower lane's d words, then the upper lane's.
constexpr int closeUp(int d, int k)
{
    return k < d ? k : (k < 2 * d ? 4 + k - d : 7);
}

template <int S, int D>
__attribute__((target("avx2"), always_inline)) inline void block8(const std::uint8_t* in, std::uint8_t* out,
                                                                 __m256i shuffle, __m256i fill)
{
    __m256i v = _mm256_loadu_si256(reinterpret_cast<const __m256i*>(in));
    if (S != 4)
        v = _mm256_permutevar8x32_epi32(v, _mm256_setr_epi32(0, 1, 2, 3, S, S + 1, S + 2, S + 3));
    v = _mm256_or_si256(_mm256_shuffle_epi8(v, shuffle), fill);
    if (D == 4) {
        _mm256_storeu_si256(reinterpret_cast<__m256i*>(out), v);
        return;
    }
    v = _mm256_permutevar8x32_epi32(v, _mm256_setr_epi32(closeUp(D, 0), closeUp(D, 1), closeUp(D, 2), closeUp(D, 3),
                                                         closeUp(D, 4), closeUp(D, 5), closeUp(D, 6), closeUp(D, 7)));
    const __m128i low = _mm256_castsi256_si128(v);
    if (D == 1) {
        _mm_storel_epi64(reinterpret_cast<__m128i*>(out), low);
    } else if (D == 2) {
        _mm_storeu_si128(reinterpret_cast<__m128i*>(out), low);
    } else {
        _mm_storeu_si128(reinterpret_cast<__m128i*>(out), low);
        _mm_storel_epi64(reinterpret_cast<__m128i*>(out + 16), _mm256_extracti128_si256(v, 1));
    }
}

template <int S, int D>
__attribute__((target("avx2"))) void runAvx2(const std::uint8_t* src, std::size_t srcStep, std::uint8_t* dst,
                                             std::size_t dstStep, int width, int height, const LaneMasks& masks)
{
    const __m256i shuffle =
        _mm256_broadcastsi128_si256(_mm_loadu_si128(reinterpret_cast<const __m128i*>(masks.shuffle)));
    const __m256i fill = _mm256_broadcastsi128_si256(_mm_loadu_si128(reinterpret_cast<const __m128i*>(masks.fill)));
    const std::size_t rowBytes = std::size_t(width) * S;
    for (int y = 0; y < height; ++y) {
        const std::uint8_t* in = src + std::size_t(y) * srcStep;
        std::uint8_t* out = dst + std::size_t(y) * dstStep;
        std::size_t x = 0;
        for (; x * S + 32 <= rowBytes; x += 8)
            block8<S, D>(in + x * S, out + x * D, shuffle, fill);
        const std::size_t rest = std::size_t(width) - x; // fewer than 32 / S pixels
        if (rest == 0)
            continue;
        alignas(32) std::uint8_t inBuffer[64] = {};
        alignas(32) std::uint8_t outBuffer[128];
        std::memcpy(inBuffer, in + x * S, rest * S);
        for (std::size_t b = 0; b * 8 < rest; ++b)
            block8<S, D>(inBuffer + b * 8 * S, outBuffer + b * 8 * D, shuffle, fill);
        std::memcpy(out + x * D, outBuffer, rest * D);
    }
}

using Kernel = void (*)(const std::uint8_t*, std::size_t, std::uint8_t*, std::size_t, int, int, const LaneMasks&);

template <int S>
Kernel avx2For(int d)
{
    switch (d) {
    case 1:
        return runAvx2<S, 1>;
    case 2:
        return runAvx2<S, 2>;
    case 3:
        return runAvx2<S, 3>;
    default:
        return runAvx2<S, 4>;
    }
}

Kernel avx2Kernel(int s, int d)
{
    switch (s) {
    case 1:
        return avx2For<1>(d);
    case 2:
        return avx2For<2>(d);
    case 3:
        return avx2For<3>(d);
    default:
        return avx2For<4>(d);
    }
}

// KES_CV_DISABLE_AVX2 set to anything non-empty takes the OpenCV path, as on processors without
// AVX2, so that it can be tested and compared on any machine.
bool hasAvx2()
{
    static const bool avx2 = __builtin_cpu_supports("avx2") && !std::getenv("KES_CV_DISABLE_AVX2");
    return avx2;
}

// Below this many bytes written, handing rows to other threads costs more than it saves.
constexpr std::size_t parallelBytes = std::size_t(1) << 20;

// Bands of rows on OpenCV's thread pool: one core alone cannot keep a frame of video size moving
// at the speed of the memory. The application sets the number of threads with cv::setNumThreads.
class Bands : public ::cv::ParallelLoopBody
{
public:
    Bands(Kernel kernel, const std::uint8_t* src, std::size_t srcStep, std::uint8_t* dst, std::size_t dstStep,
          int width, const LaneMasks& masks)
        : m_kernel(kernel), m_src(src), m_srcStep(srcStep), m_dst(dst), m_dstStep(dstStep), m_width(width),
          m_masks(masks)
    {
    }

    void operator()(const ::cv::Range& rows) const override
    {
        m_kernel(m_src + std::size_t(rows.start) * m_srcStep, m_srcStep, m_dst + std::size_t(rows.start) * m_dstStep,
                 m_dstStep, m_width, rows.end - rows.start, m_masks);
    }

private:
    Kernel m_kernel;
    const std::uint8_t* m_src;
    std::size_t m_srcStep;
    std::uint8_t* m_dst;
    std::size_t m_dstStep;
    int m_width;
    LaneMasks m_masks;
};

#endif

bool run(const std::uint8_t* src, std::size_t srcStep, std::uint8_t* dst, std::size_t dstStep, int width,
         int height, const Mapping& m)
{
    if (width == 0 || height == 0)
        return true;
#ifdef KES_CV_PIXELS_X86
    if (hasAvx2()) {
        const Kernel kernel = avx2Kernel(m.srcChannels, m.dstChannels);
        const LaneMasks masks = laneMasks(m);
        const std::size_t bytes = std::size_t(width) * std::size_t(height) * std::size_t(m.dstChannels);
        // In place, a band redone after a failure would be permuted twice; those stay on one thread.
        if (bytes >= parallelBytes && height > 1 && src != dst) {
            try {
                const int threads = std::max(::cv::getNumThreads(), 1);
                ::cv::parallel_for_(::cv::Range(0, height), Bands(kernel, src, srcStep, dst, dstStep, width, masks),
                                    double(threads));
                return true;
            } catch (const std::exception&) {
                // No thread to be had: the copy is done again, whole, on this one.
            }
        }
        kernel(src, srcStep, dst, dstStep, width, height, masks);
        return true;
    }
#endif
    return runOpenCv(src, srcStep, dst, dstStep, width, height, m);
}

} // namespace

bool copy(const std::uint8_t* src, std::size_t srcStep, int srcChannels, std::uint8_t* dst, std::size_t dstStep,
          int dstChannels, int width, int height, const int* order, std::uint8_t fill)
{
    if (!src || !dst || !validChannels(srcChannels) || !validChannels(dstChannels) || width < 0 || height < 0
        || !validStride(srcStep, srcChannels, width) || !validStride(dstStep, dstChannels, width))
        return false;
    Mapping m;
    m.srcChannels = srcChannels;
    m.dstChannels = dstChannels;
    m.fill = fill;
    for (int i = 0; i < dstChannels; ++i) {
        const int source = order ? order[i] : (i < srcChannels ? i : fillChannel);
        if (source < fillChannel || source >= srcChannels)
            return false;
        m.order[i] = source;
    }
    return run(src, srcStep, dst, dstStep, width, height, m);
}

bool reorder(std::uint8_t* data, std::size_t step, int channels, const int* order, int width, int height)
{
    if (!data || !order || !validChannels(channels) || width < 0 || height < 0
        || !validStride(step, channels, width))
        return false;
    Mapping m;
    m.srcChannels = m.dstChannels = channels;
    for (int i = 0; i < channels; ++i) {
        if (order[i] < 0 || order[i] >= channels)
            return false;
        m.order[i] = order[i];
    }
    return run(data, step, data, step, width, height, m);
}

bool setChannel(std::uint8_t* data, std::size_t step, int channels, int channel, std::uint8_t value, int width,
                int height)
{
    if (!data || !validChannels(channels) || channel < 0 || channel >= channels || width < 0 || height < 0
        || !validStride(step, channels, width))
        return false;
    Mapping m;
    m.srcChannels = m.dstChannels = channels;
    m.fill = value;
    for (int i = 0; i < channels; ++i)
        m.order[i] = i == channel ? fillChannel : i;
    return run(data, step, data, step, width, height, m);
}

} // namespace kes::cv::pixels

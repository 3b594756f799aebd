// Sounds that one would leave on: short, quiet, without a knock at either end.

#include "Delivery.h"

#include <gtest/gtest.h>

#include <QtEndian>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <vector>

namespace varnhold::test {

namespace {

constexpr int headerSize = 44;

} // namespace

TEST(Sounds, areShortAndSoft)
{
    const std::vector<assets::DeliveredFile> files = assets::soundFiles();
    const std::array names{"wav/click.wav", "wav/menu.wav", "wav/startup.wav", "wav/shutdown.wav"};
    ASSERT_EQ(files.size(), names.size());
    for (std::size_t i = 0; i < files.size(); ++i) {
        SCOPED_TRACE(files[i].path);
        EXPECT_EQ(files[i].path, names.at(i));
        const std::string& bytes = files[i].bytes;
        ASSERT_GT(bytes.size(), std::size_t{headerSize});
        const auto u16 = [&](std::size_t at) { return qFromLittleEndian<quint16>(bytes.data() + at); };
        const auto u32 = [&](std::size_t at) { return qFromLittleEndian<quint32>(bytes.data() + at); };
        EXPECT_EQ(bytes.substr(0, 4) + bytes.substr(8, 8) + bytes.substr(36, 4), "RIFFWAVEfmt data");
        EXPECT_EQ(u32(4), bytes.size() - 8);
        EXPECT_EQ(u16(20), 1); // plain samples
        EXPECT_EQ(u16(22), 1); // one channel
        EXPECT_EQ(u32(24), 44100U);
        EXPECT_EQ(u32(28), 88200U);
        EXPECT_EQ(u16(34), 16);
        EXPECT_EQ(u32(40), bytes.size() - headerSize);

        std::vector<int> samples;
        for (std::size_t at = headerSize; at + 1 < bytes.size(); at += 2)
            samples.push_back(qFromLittleEndian<qint16>(bytes.data() + at));
        const auto ms = static_cast<int>(samples.size() * 1000 / 44100);
        const bool isTap = i < 2;
        EXPECT_GE(ms, isTap ? 40 : 700);
        EXPECT_LE(ms, isTap ? 400 : 1400);
        const auto peak = [](auto from, auto to) {
            int most = 0;
            for (auto at = from; at != to; ++at)
                most = std::max(most, std::abs(*at));
            return most;
        };
        const int loudest = peak(samples.begin(), samples.end());
        EXPECT_GE(loudest, 32768 / 20) << "hardly to be heard";
        EXPECT_LE(loudest, 32768 / 2) << "louder than half of what there is";
        EXPECT_EQ(samples.front(), 0);
        EXPECT_LE(peak(samples.end() - 44, samples.end()), 16) << "ends with a knock";
        std::int64_t sum = 0;
        for (const int sample : samples)
            sum += sample;
        EXPECT_LE(std::abs(sum / static_cast<std::int64_t>(samples.size())), 40) << "leans to one side";
    }
}

} // namespace varnhold::test

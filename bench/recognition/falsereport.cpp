// SPDX-License-Identifier: MIT
// Is anything recognised where there is nothing?
#include "bench/recognition/falseframes.h"
#include "bench/recognition/reports.h"
#include "recognition/extraction.h"
#include "recognition/recognise.h"

#include <array>
#include <cstdio>

int reportFalseFrames(int first, int count)
{
    struct Row {
        int frames = 0, recognised = 0, withoutStars = 0;
        double minChance = 1.0; // of those that were recognised
    };
    std::array<Row, falseKinds> rows;
    for (int number = first; number < first + count; ++number) {
        const FalseFrame frame = falseFrame(std::uint64_t(number));
        recognition::RecognitionOptions options;
        options.utcSeconds = 1.58e9 + 6.6e8 * (number % 1000) / 1000.0; // 2020 to 2040
        if (frame.kind == FalseKind::OtherPole)
            options.hemisphere =
                frame.askSouth ? recognition::Hemisphere::South : recognition::Hemisphere::North;
        const recognition::Extraction stars = recognition::extractStars(frame.picture);
        const recognition::Recognition found =
            recognition::recognise(stars.stars, frame.picture.cols, frame.picture.rows, options);
        Row &row = rows[std::size_t(frame.kind)];
        ++row.frames;
        row.withoutStars += stars.stars.size() < recognition::minStars;
        if (found.status == recognition::RecognitionStatus::Recognised) {
            ++row.recognised;
            row.minChance = std::min(row.minChance, found.chance);
            std::fprintf(stderr, "frame %d (%s): %zu of %zu stars, chance %g\n", number,
                         nameOf(frame.kind).c_str(), found.matched.size(), stars.stars.size(),
                         found.chance);
        }
    }
    int all = 0;
    std::printf("| pictures | number | with too few stars | recognised |\n|---|---|---|---|\n");
    for (std::size_t kind = 0; kind < rows.size(); ++kind) {
        std::printf("| %s | %d | %d | %d |\n", nameOf(FalseKind(int(kind))).c_str(),
                    rows[kind].frames, rows[kind].withoutStars, rows[kind].recognised);
        all += rows[kind].recognised;
    }
    return all;
}

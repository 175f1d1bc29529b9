#pragma once

#include "vrx_api/vrx_api_exchange_common.h"

#include <array>
#include <cstddef>
#include <vector>

/// Where something stands, from transformations that lie one in another: a point p is at affine * p + translation.
class Placement
{
public:
    Placement() = default;

    explicit Placement(const vrx::ExcTransformation& transformation)
    {
        for (std::size_t row = 0; row < 3; ++row)
        {
            for (std::size_t column = 0; column < 3; ++column)
            {
                m_rows[row][column] = transformation.affine()[row][column];
            }
            m_rows[row][3] = transformation.translation()[row];
        }
    }

    /// Of what stands at `inner` in what stands here.
    Placement operator*(const Placement& inner) const
    {
        Placement result;
        for (std::size_t row = 0; row < 3; ++row)
        {
            for (std::size_t column = 0; column < 4; ++column)
            {
                double sum = column == 3 ? m_rows[row][3] : 0;
                for (std::size_t i = 0; i < 3; ++i)
                {
                    sum += m_rows[row][i] * inner.m_rows[i][column];
                }
                result.m_rows[row][column] = sum;
            }
        }
        return result;
    }

    /// Appends the images of points, or of directions, that come in threes.
    void appendPoints(std::vector<float>& target, const std::vector<float>& points) const { append(target, points, 1); }
    void appendDirections(std::vector<float>& target, const std::vector<float>& directions) const
    {
        append(target, directions, 0);
    }

    /// As 4 x 4 numbers, column by column.
    std::array<double, 16> columns() const
    {
        std::array<double, 16> numbers{};
        for (std::size_t column = 0; column < 4; ++column)
        {
            for (std::size_t row = 0; row < 3; ++row)
            {
                numbers[column * 4 + row] = m_rows[row][column];
            }
        }
        numbers[15] = 1;
        return numbers;
    }

private:
    void append(std::vector<float>& target, const std::vector<float>& source, double weight) const
    {
        for (std::size_t i = 0; i + 3 <= source.size(); i += 3)
        {
            for (const std::array<double, 4>& row : m_rows)
            {
                target.push_back(static_cast<float>(row[0] * static_cast<double>(source[i]) +
                                                    row[1] * static_cast<double>(source[i + 1]) +
                                                    row[2] * static_cast<double>(source[i + 2]) + row[3] * weight));
            }
        }
    }

    std::array<std::array<double, 4>, 3> m_rows{{{1, 0, 0, 0}, {0, 1, 0, 0}, {0, 0, 1, 0}}};
};

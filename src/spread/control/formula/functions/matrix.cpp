#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>
#include <utility>
#include <vector>

#include "spread/control/formula/functions/arguments.h"
#include "spread/control/formula/functions/families.h"

namespace formula {
namespace {

/// Numbers row by row.
struct Matrix {
    int rows = 0;
    int cols = 0;
    std::vector<double> cells;

    Matrix(int rowCount, int colCount)
        : rows(rowCount),
          cols(colCount),
          cells(static_cast<size_t>(rowCount) * static_cast<size_t>(colCount)) {}

    double& at(int row, int col) { return cells[place(row, col)]; }
    double at(int row, int col) const { return cells[place(row, col)]; }
    bool isSquare() const { return rows == cols; }
    void swapRows(int a, int b) {
        const auto first = cells.begin() + static_cast<std::ptrdiff_t>(place(a, 0));
        const auto second = cells.begin() + static_cast<std::ptrdiff_t>(place(b, 0));
        std::swap_ranges(first, first + cols, second);
    }
    void subtractRow(int from, double factor, int row) {
        for (int col = 0; col < cols; ++col) at(from, col) -= factor * at(row, col);
    }

  private:
    size_t place(int row, int col) const {
        return static_cast<size_t>(row) * static_cast<size_t>(cols) + static_cast<size_t>(col);
    }
};

constexpr int64_t mostCells = 1'000'000;  // so that the slowest takes about a second

/// Every cell must hold a number; an empty cell, a text or a boolean is #VALUE!.
std::optional<ErrorCode> read(const Calculation& c, const Value& argument, Matrix& matrix) {
    const int64_t size =
        static_cast<int64_t>(Calculation::rows(argument)) * Calculation::cols(argument);
    if (size > mostCells) return ErrorCode::value;
    matrix = Matrix(Calculation::rows(argument), Calculation::cols(argument));
    std::optional<ErrorCode> error;
    int64_t numbers = 0;
    c.eachAt(argument, [&](int row, int col, const Value& value) {
        if (value.isError() && !error) error = value.error();
        if (!value.isNumber()) return;
        ++numbers;
        matrix.at(row, col) = value.number();
    });
    if (!error && numbers < size) error = ErrorCode::value;
    return error;
}

int64_t cubed(int size) {
    return int64_t{size} * size * size;
}

/// A matrix as a result; #NUM! when one of its numbers overflowed.
Value asResult(Calculation& c, const Matrix& matrix) {
    const bool isFinite = std::all_of(matrix.cells.begin(), matrix.cells.end(),
                                      [](double x) { return std::isfinite(x); });
    Array* array = isFinite ? c.newArray(matrix.rows, matrix.cols) : nullptr;
    if (!array) return ErrorCode::num;
    std::transform(matrix.cells.begin(), matrix.cells.end(), array->cells,
                   [](double x) { return Value(x + 0.0); });
    return Value::array(array);
}

/// Brings `matrix` to upper triangular form, doing the same to the rows of `partner`. The
/// determinant of `matrix` is what comes back; 0 (then nothing more is done) when it is singular as
/// far as its digits can tell: when what is left of a pivot is no more than the rounding of the
/// greatest terms that met in its cell.
double eliminate(Matrix& matrix, Matrix* partner) {
    Matrix greatestTerms = matrix;
    for (double& x : greatestTerms.cells) x = std::fabs(x);
    const double rounding = matrix.rows * std::numeric_limits<double>::epsilon();
    double determinant = 1;
    for (int step = 0; step < matrix.rows; ++step) {
        int pivot = step;
        for (int row = step + 1; row < matrix.rows; ++row)
            if (std::fabs(matrix.at(row, step)) > std::fabs(matrix.at(pivot, step))) pivot = row;
        if (std::fabs(matrix.at(pivot, step)) <= rounding * greatestTerms.at(pivot, step)) return 0;
        if (pivot != step) {
            matrix.swapRows(pivot, step);
            greatestTerms.swapRows(pivot, step);
            if (partner) partner->swapRows(pivot, step);
            determinant = -determinant;
        }
        determinant *= matrix.at(step, step);
        for (int row = step + 1; row < matrix.rows; ++row) {
            const double factor = matrix.at(row, step) / matrix.at(step, step);
            if (factor == 0) continue;
            matrix.subtractRow(row, factor, step);
            if (partner) partner->subtractRow(row, factor, step);
            for (int col = step; col < matrix.cols; ++col) {
                const double term = std::fabs(factor) * greatestTerms.at(step, col);
                greatestTerms.at(row, col) = std::max(greatestTerms.at(row, col), term);
            }
        }
    }
    return determinant;
}

/// Solves upper * x = partner for every column of `partner`, in place.
void substituteBack(const Matrix& upper, Matrix& partner) {
    for (int row = upper.rows - 1; row >= 0; --row) {
        for (int col = 0; col < partner.cols; ++col) {
            double rest = partner.at(row, col);
            for (int k = row + 1; k < upper.cols; ++k)
                rest -= upper.at(row, k) * partner.at(k, col);
            partner.at(row, col) = rest / upper.at(row, row);
        }
    }
}

Matrix unitMatrix(int size) {
    Matrix unit(size, size);
    for (int i = 0; i < size; ++i) unit.at(i, i) = 1;
    return unit;
}

Value determinant(Calculation& c, std::span<const Value> args) {
    Matrix matrix(0, 0);
    if (const auto error = read(c, args[0], matrix)) return *error;
    if (!matrix.isSquare()) return ErrorCode::value;
    if (!c.spend(cubed(matrix.rows))) return ErrorCode::num;
    return numberOrError(eliminate(matrix, nullptr));
}

Value inverse(Calculation& c, std::span<const Value> args) {
    Matrix matrix(0, 0);
    if (const auto error = read(c, args[0], matrix)) return *error;
    if (!matrix.isSquare()) return ErrorCode::value;
    if (!c.spend(2 * cubed(matrix.rows))) return ErrorCode::num;
    Matrix result = unitMatrix(matrix.rows);
    if (eliminate(matrix, &result) == 0) return ErrorCode::num;
    substituteBack(matrix, result);
    return asResult(c, result);
}

Value multiply(Calculation& c, std::span<const Value> args) {
    Matrix left(0, 0);
    Matrix right(0, 0);
    if (const auto error = read(c, args[0], left)) return *error;
    if (const auto error = read(c, args[1], right)) return *error;
    const int64_t size = static_cast<int64_t>(left.rows) * right.cols;
    if (left.cols != right.rows || size > mostCells) return ErrorCode::value;
    if (!c.spend(size * left.cols)) return ErrorCode::num;
    Matrix result(left.rows, right.cols);
    for (int row = 0; row < left.rows; ++row)
        for (int k = 0; k < left.cols; ++k)
            for (int col = 0; col < right.cols; ++col)
                result.at(row, col) += left.at(row, k) * right.at(k, col);
    return asResult(c, result);
}

Value transpose(Calculation& c, std::span<const Value> args) {
    Array* array = c.newArray(Calculation::cols(args[0]), Calculation::rows(args[0]));
    if (!array) return ErrorCode::num;
    c.eachAt(args[0], [&](int row, int col, const Value& value) { array->at(col, row) = value; });
    return Value::array(array);
}

Value unit(Calculation& c, std::span<const Value> args) {
    const Result<double> size = numberOf(args[0]);
    if (!size) return size.error();
    if (!(*size >= 1 && *size * *size <= mostCells)) return ErrorCode::value;
    return asResult(c, unitMatrix(static_cast<int>(*size)));
}

double factorOf(const Value& value) {
    return value.isNumber() ? value.number() : 0;
}

/// The product of the numbers at one place of all arguments; what is no number counts as 0.
double productAt(const Calculation& c, std::span<const Value> others, int row, int col,
                 double first) {
    c.spend(5 * static_cast<int64_t>(others.size()));
    double result = first;
    for (const Value& other : others) result *= factorOf(c.element(other, row, col));
    return result;
}

/// Of an argument that is an array made from whole columns.
bool hasRest(const Value& argument) {
    return argument.isArray() && argument.array().unstored() > 0;
}

/// Beyond what any argument has stored all products are the same.
double sumWithRests(const Calculation& c, std::span<const Value> args) {
    Calculation::Extent stored;
    double total = 0, product = 1;
    for (const Value& argument : args) {
        const Calculation::Extent own = c.extent(argument);
        stored.rows = std::max(stored.rows, own.rows);
        stored.cols = std::max(stored.cols, own.cols);
        product *= factorOf(Calculation::rest(argument));
    }
    if (!c.spend(10LL * stored.rows * stored.cols)) return 0;
    for (int row = 0; row < stored.rows; ++row)
        for (int col = 0; col < stored.cols; ++col)
            total +=
                productAt(c, args.subspan(1), row, col, factorOf(c.element(args[0], row, col)));
    const auto count = static_cast<double>(Calculation::rows(args[0])) * Calculation::cols(args[0]);
    return total + product * (count - static_cast<double>(stored.rows) * stored.cols);
}

Value sumOfProducts(Calculation& c, std::span<const Value> args) {
    const int rows = Calculation::rows(args[0]);
    const int cols = Calculation::cols(args[0]);
    for (const Value& argument : args)
        if (Calculation::rows(argument) != rows || Calculation::cols(argument) != cols)
            return ErrorCode::value;
    for (const Value& argument : args.subspan(1))
        if (const auto error = firstError(c, argument)) return *error;
    if (hasRest(args[0])) {
        const auto error = firstError(c, args[0]);
        return error ? Value(*error) : numberOrError(sumWithRests(c, args));
    }
    std::optional<ErrorCode> error;
    double total = 0;
    c.eachAt(args[0], [&](int row, int col, const Value& value) {
        if (value.isError() && !error) error = value.error();
        if (value.isNumber()) total += productAt(c, args.subspan(1), row, col, value.number());
    });
    return error ? Value(*error) : numberOrError(total);
}

constexpr FunctionSpec rows[] = {
    {"SUMPRODUCT", 1, anyCount, "a", sumOfProducts, plain, "array1, [array2], …",
     "The sum of the products of the numbers that stand at the same place of every array."},
    {"MMULT", 2, 2, "a", multiply, plain, "array1, array2",
     "The product of two matrices; the first must have as many columns as the second has rows."},
    {"MDETERM", 1, 1, "a", determinant, plain, "array", "The determinant of a square matrix."},
    {"MINVERSE", 1, 1, "a", inverse, plain, "array",
     "The inverse of a square matrix; #NUM! when there is none."},
    {"TRANSPOSE", 1, 1, "a", transpose, plain, "array", "The array with rows and columns changed."},
    {"MUNIT", 1, 1, "v", unit, plain, "size", "The unit matrix of that many rows and columns."},
};

}  // namespace

std::span<const FunctionSpec> matrixFunctions() {
    return rows;
}

}  // namespace formula

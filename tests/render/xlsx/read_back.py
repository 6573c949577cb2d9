"""Reads the workbooks of the sample documents back with openpyxl.

Usage: read_back.py FOLDER, which render-records has written.
"""

import pathlib
import re
import sys
import unittest
import zipfile

import openpyxl

FOLDER = pathlib.Path()


def read(name):
    return openpyxl.load_workbook(FOLDER / name)


def values(sheet):
    return [[cell.value for cell in row] for row in sheet.rows]


def merged(sheet):
    return sorted(str(cells) for cells in sheet.merged_cells.ranges)


class Sample(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.book = read("sample.xlsx")

    def test_one_sheet_for_each_table_and_layer(self):
        self.assertEqual(self.book.sheetnames, [
            "1 Penguins by species", "2.1 Survival by region, sex an…",
            "2.2 Survival by region, sex an…", "3 Weights of penguins", "4 Notes",
            "5 Nothing was counted"])

    def test_numbers_are_numbers_with_their_format(self):
        sheet = self.book["1 Penguins by species"]
        self.assertEqual(values(sheet), [
            ["Penguins by species", None, None, None],
            ["Species", "Statistics", None, None],
            [None, "N", "Per cent", "Mean mass"],
            ["Adelie", 152, 44.2, 3700.66],
            ["Chinstrap", 68, None, "."],
            ["Gentoo", 1240, 36, -5076.02],
            [None, None, None, None],
            ["Palmer Archipelago, 2007 to 2009.", None, None, None]])
        formats = [cell.number_format for cell in sheet[6][1:]]
        self.assertEqual(formats, ["#,##0", '0.0"%"', "0.000"])
        self.assertEqual(sheet["B4"].number_format, "#,##0")
        self.assertEqual(sheet["D4"].number_format, "0.00")

    def test_headings_are_merged_and_stay_in_sight(self):
        sheet = self.book["1 Penguins by species"]
        self.assertEqual(merged(sheet), ["A2:A3", "B2:D2"])
        self.assertEqual(sheet.freeze_panes, "B4")
        self.assertTrue(sheet["B2"].font.bold)

    def test_nested_headings_and_layers(self):
        sheet = self.book["2.2 Survival by region, sex an…"]
        self.assertEqual(values(sheet)[:8], [
            ["Survival by region, sex and class"] + [None] * 6,
            ["Class: Third"] + [None] * 6,
            ["Region", None, "Sex", "Age", None, None, None],
            [None, None, None, "Adult", None, "Child", None],
            [None, None, None, "Survived", None, "Survived", None],
            [None, None, None, "No", "Yes", "No", "Yes"],
            ["Europe", "Britain", "Female", 64**2, 80**2, 72**2, 88**2],
            [None, None, "Male", 68**2, 84**2, 76**2, 92**2]])
        self.assertEqual(merged(sheet), sorted([
            "A3:B6", "C3:C6", "D3:G3", "D4:E4", "F4:G4", "D5:E5", "F5:G5",
            "A7:A10", "B7:B8", "B9:B10", "A11:B11"]))
        self.assertEqual(sheet.freeze_panes, "D7")

    def test_marks_stand_behind_and_notes_below(self):
        sheet = self.book["3 Weights of penguins"]
        self.assertEqual(values(sheet), [
            ["Weights of penguinsa", None, None],
            ["Speciesc", "Statistics", None],
            [None, "Mean", "Difference"],
            ["Adelie", 3700.7, -12.25],
            ["Gentood", 5076, 1375.3],
            [None, None, None],
            ["Measured on land.c", None, None],
            [None, None, None],
            ["a. In grams.", None, None],
            ["c. Weighted by island.", None, None],
            ["*. Significant at 5 per cent.", None, None],
            ["b. Estimated.", None, None],
            ["d. Few birds.", None, None]])
        self.assertEqual(sheet["B4"].number_format, '0.0" *,b"')
        self.assertEqual(sheet["C5"].number_format, '0.0" *"')

    def test_a_corner_without_column_labels_has_a_row(self):
        self.assertEqual(values(self.book["4 Notes"]), [
            ["Notes", None], ["Item", None], ["Output created", "on a Monday"],
            ["Records read", 344]])

    def test_a_table_without_cells_has_a_sheet(self):
        self.assertEqual(values(self.book["5 Nothing was counted"]),
                         [["Nothing was counted"], ["(no cells)"]])

    def test_columns_are_as_wide_as_their_texts(self):
        sheet = self.book["1 Penguins by species"]
        self.assertAlmostEqual(sheet.column_dimensions["A"].width, 11, delta=1)
        self.assertAlmostEqual(sheet.column_dimensions["D"].width, 11, delta=1)


class Formats(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.book = read("formats.xlsx")
        cls.sheet = cls.book.worksheets[0]
        cls.cells = [row[1] for row in cls.sheet.iter_rows(min_row=3, max_row=16)]

    def test_the_name_of_the_sheet_has_no_forbidden_character(self):
        self.assertEqual(self.book.sheetnames, ["1 it's  all   'in' a b c     o…"])

    def test_formats(self):
        shown = [(cell.value, cell.number_format) for cell in self.cells[:6]]
        self.assertEqual(shown, [
            (0.1, "General"), (1234.5, "#,##0.00"), (12.5, '0.0"%"'), (1234567, '#,##0"%"'),
            (-1e300, "0.00"), (3, '0" a"')])

    def test_what_fits_no_number_is_text(self):
        self.assertEqual([cell.value for cell in self.cells[6:8]], ['4"q"', "inf"])
        self.assertEqual({cell.data_type for cell in self.cells[6:8]}, {"s"})

    def test_text_is_no_formula_and_no_link(self):
        texts = [self.cells[8], self.cells[9], self.cells[13]]
        self.assertEqual([cell.value for cell in texts],
                         ["=1+2", "http://example.org/", "{=A1}"])
        with zipfile.ZipFile(FOLDER / "formats.xlsx") as archive:
            sheet = archive.read("xl/worksheets/sheet1.xml").decode()
            self.assertNotIn("<f>", sheet)
            self.assertNotIn("hyperlink", sheet)
            self.assertIn("_x005F_x0041_ 12", sheet)

    def test_long_text_is_cut_off(self):
        self.assertEqual(self.cells[11].value, "x" * 32766 + "…")
        self.assertEqual(self.cells[12].value, "y" * 32765 + "…a")


class Others(unittest.TestCase):
    def test_hostile_texts_stay_texts(self):
        book = read("hostile.xlsx")
        self.assertEqual(len(book.worksheets), 1)
        texts = [value for row in values(book.worksheets[0]) for value in row
                 if isinstance(value, str)]
        self.assertIn("<script>alert(\"1\")</script> & 'more'", texts)
        self.assertIn("=1+2", texts)
        self.assertIn("line\nbreak\nand\ttab", texts)
        self.assertIn("zero\ufffdbyte\ufffd[31mred\x7f", texts)
        for cell in (cell for row in book.worksheets[0].rows for cell in row):
            self.assertIn(cell.data_type, "sn", cell)
            self.assertIsNone(cell.hyperlink)

    def test_many_sheets(self):
        book = read("many.xlsx")
        self.assertEqual(len(book.worksheets), 202)
        names = [sheet.title for sheet in book.worksheets]
        self.assertEqual(len({name.lower() for name in names}), 202)
        self.assertEqual(values(book.worksheets[201]), values(book.worksheets[1]))
        self.assertEqual(merged(book.worksheets[201]), merged(book.worksheets[1]))

    def test_a_document_without_tables_has_a_sheet(self):
        self.assertEqual(read("empty.xlsx").sheetnames, ["Output"])

    def test_a_table_without_a_layer_has_caption_and_notes(self):
        self.assertEqual(values(read("partly.xlsx")["1 Weights"]), [
            ["Weightsa"], ["(no cells)"], [None], ["Measured.b"], [None],
            ["a. On land."], ["b. In grams."]])

    def test_a_caption_that_is_not_shown_is_left_out(self):
        sheet = read("partly.xlsx")["2 Penguins by species"]
        self.assertEqual(sheet.max_row, 6)
        self.assertEqual(sheet["A6"].value, "Gentoo")

    def test_names_of_sheets_are_valid(self):
        for path in FOLDER.glob("*.xlsx"):
            for name in read(path.name).sheetnames:
                self.assertLessEqual(len(name.encode("utf-16-le")) // 2, 31)
                self.assertNotRegex(name, re.compile(r"[\[\]:*?/\\\x00-\x1f]|^'|'$"))


if __name__ == "__main__":
    FOLDER = pathlib.Path(sys.argv.pop(1))
    unittest.main()

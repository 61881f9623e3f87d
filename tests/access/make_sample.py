#!/usr/bin/env python3
"""Writes the Access data files that the tests read: tables of an invented shop.

    tests/access/make_sample.py FOLDER

makes FOLDER/sample-jet4.mdb (Access 2000 to 2003) and FOLDER/sample-jet3.mdb (Access 97, simplified
Chinese). They hold what a reader needs and no more: header, catalog, table definitions, usage maps, rows,
long texts; no indexes. The layout is that of the document HACKING.md of mdbtools.
"""
import struct
import sys
from datetime import datetime
from pathlib import Path

BOOL, BYTE, INT, LONG, MONEY, SINGLE, DOUBLE, DATE, TEXT, OLE, MEMO, DECIMAL = (
    1, 2, 3, 4, 5, 6, 7, 8, 10, 11, 12, 16)
SIZES = {BOOL: 0, BYTE: 1, INT: 2, LONG: 4, MONEY: 8, SINGLE: 4, DOUBLE: 8, DATE: 8, DECIMAL: 17}
LONG_TEXT = '货架上层，' * 900  # more than a page holds
INLINE, ONE_PAGE, MANY_PAGES = 0x80000000, 0x40000000, 0
MAP_BYTES = {3: 128, 4: 64}


class Format:
    """What differs between the two versions."""

    def __init__(self, version):
        self.version = version
        self.page = 2048 if version == 3 else 4096
        self.rows_at = 8 if version == 3 else 12  # of a data page: number of rows, then their places

    def text(self, text):
        if self.version == 3:
            return text.encode('gbk')
        plain = text.encode('utf-16-le')
        # One byte a character, as Access writes what it can.
        if len(text) > 2 and all(0 < ord(character) < 256 for character in text):
            return b'\xff\xfe' + text.encode('latin-1')
        return plain


def rc4(data, key):
    state = list(range(256))
    j = 0
    for i in range(256):
        j = (j + state[i] + key[i % len(key)]) % 256
        state[i], state[j] = state[j], state[i]
    out, i, j = bytearray(), 0, 0
    for byte in data:
        i = (i + 1) % 256
        j = (j + state[i]) % 256
        state[i], state[j] = state[j], state[i]
        out.append(byte ^ state[(state[i] + state[j]) % 256])
    return bytes(out)


def days(text):
    """An OLE Automation date: days since 1899-12-30, before that with the time counted forward."""
    since = datetime.fromisoformat(text) - datetime(1899, 12, 30)
    part = since.seconds / 86400
    return since.days + part if since.days >= 0 else since.days - part


class File:
    def __init__(self, version):
        self.format = Format(version)
        self.pages = [None, None, None]  # header, allocation, definition of the catalog
        self.catalog = []
        self.maps_page = self.add(None)
        self.maps = []

    def add(self, page):
        self.pages.append(page)
        return len(self.pages) - 1

    def data_page(self, owner, rows):
        """Rows from the end of the page, their places from its beginning."""
        f = self.format
        places, body = b'', b''
        for row in rows:
            body = row + body
            places += struct.pack('<H', f.page - len(body))
        head = struct.pack('<BBH', 1, 1, f.page - f.rows_at - 2 - len(places) - len(body)) + owner
        head = head.ljust(f.rows_at, b'\0') + struct.pack('<H', len(rows)) + places
        assert len(head) + len(body) <= f.page
        return head + bytes(f.page - len(head) - len(body)) + body

    def add_map(self, pages):
        bits = bytearray(MAP_BYTES[self.format.version])
        for page in pages:
            bits[page // 8] |= 1 << page % 8
        self.maps.append(struct.pack('<BI', 0, 0) + bytes(bits))
        return self.maps_page << 8 | len(self.maps) - 1

    def long_text(self, data):
        """The head of a memo in its row, and what does not fit there in pages of its own."""
        f = self.format
        if len(data) <= 100:
            return struct.pack('<III', len(data) | INLINE, 0, 0) + data
        room = f.page - f.rows_at - 4
        if len(data) <= room:
            page = self.add(self.data_page(b'LVAL', [data]))
            return struct.pack('<III', len(data) | ONE_PAGE, page << 8, 0)
        pieces = [data[at:at + room - 4] for at in range(0, len(data), room - 4)]
        following = 0
        for piece in reversed(pieces):
            page = self.add(self.data_page(b'LVAL', [struct.pack('<I', following) + piece]))
            following = page << 8
        return struct.pack('<III', len(data) | MANY_PAGES, following, 0)

    def packed(self, kind, value):
        if kind in (TEXT,):
            return self.format.text(value)
        if kind == MEMO:
            return self.long_text(self.format.text(value))
        if kind == MONEY:  # ten-thousandths
            return struct.pack('<q', round(value * 10000))
        if kind == DATE:
            return struct.pack('<d', days(value))
        if kind == DECIMAL:  # of scale 2: sign, then four groups, the highest first
            number = round(abs(value) * 100)
            return struct.pack('<BIIII', 0x80 if value < 0 else 0, 0, 0, number >> 32, number & 0xffffffff)
        return struct.pack({BYTE: '<B', INT: '<h', LONG: '<i', SINGLE: '<f', DOUBLE: '<d'}[kind], value)

    def row(self, columns, values):
        f = self.format
        fixed, variable, offsets, filled = b'', b'', [], 0
        count = 'B' if f.version == 3 else 'H'
        start = struct.calcsize('<' + count)
        for bit, ((_, kind), value) in enumerate(zip(columns, values)):
            if value is not None and (kind != BOOL or value):
                filled |= 1 << bit
            if kind in SIZES:
                fixed += bytes(SIZES[kind]) if value is None or kind == BOOL else self.packed(kind, value)
        start += len(fixed)
        for (_, kind), value in zip(columns, values):
            if kind in SIZES:
                continue
            offsets.append(start + len(variable))
            if value is not None:
                variable += self.packed(kind, value)
        offsets.append(start + len(variable))
        row = struct.pack('<' + count, len(columns)) + fixed + variable
        mask = filled.to_bytes((len(columns) + 7) // 8, 'little')
        if len(offsets) > 1:
            if f.version == 3:  # places are bytes here, and rows of these samples short
                row += bytes(reversed(offsets)) + bytes([len(offsets) - 1])
                assert len(row) + len(mask) < 256
            else:
                row += b''.join(struct.pack('<H', offset) for offset in reversed(offsets))
                row += struct.pack('<H', len(offsets) - 1)
        return row + mask

    def definition(self, columns, rows, used, is_system):
        f = self.format
        variables = [kind for _, kind in columns if kind not in SIZES]
        head = struct.pack('<BBHI', 2, 1, 0x4356, 0)
        kind = 0x53 if is_system else 0x4E
        counts = struct.pack('<BHHHII', kind, len(columns), len(variables), len(columns), 0, 0)
        maps = struct.pack('<II', self.add_map(used), self.add_map([]))
        if f.version == 3:
            body = struct.pack('<II', rows, 0) + counts + maps
        else:
            body = struct.pack('<IIIII8x', 1625, rows, 0, 1, 0) + counts + maps
        variable, fixed = 0, 0
        for number, (_, kind) in enumerate(columns):
            is_fixed = kind in SIZES
            size = SIZES.get(kind, 510 if kind == TEXT else 0)
            flags = 2 | is_fixed
            scale = struct.pack('<BB', 18, 2) if kind == DECIMAL else struct.pack('<H', 0x804)
            if f.version == 3:
                body += struct.pack('<BHHH', kind, number, variable, number)
                body += scale + struct.pack('<HHBHH', 936, 0, flags, fixed, size)
            else:
                body += struct.pack('<BIHHH', kind, 1625, number, variable, number)
                body += scale + struct.pack('<HBBIHH', 0, flags, 1, 0, fixed, size)
            fixed += SIZES.get(kind, 0)
            variable += not is_fixed
        for name, _ in columns:
            name = name.encode('gbk' if f.version == 3 else 'utf-16-le')
            body += struct.pack('<B' if f.version == 3 else '<H', len(name)) + name
        body += b'\xff\xff'
        length = struct.pack('<I', len(head) + 4 + len(body))
        assert len(head + length + body) <= f.page
        return (head + length + body).ljust(f.page, b'\0')

    def fill(self, place, name, columns, rows, is_system=False, kind=1, flags=0):
        """The pages of a table whose definition is at that page."""
        f = self.format
        pages, row_page = [], []
        room = f.page - f.rows_at - 2
        for values in rows:
            assert len(values) == len(columns), (name, values)
            row = self.row(columns, values)
            if sum(len(other) + 2 for other in row_page) + len(row) + 2 > room:
                pages.append(self.add(self.data_page(struct.pack('<I', place), row_page)))
                row_page = []
            row_page.append(row)
        if row_page:
            pages.append(self.add(self.data_page(struct.pack('<I', place), row_page)))
        self.pages[place] = self.definition(columns, len(rows), pages, is_system)

    def table(self, name, columns, *rows, flags=0):
        place = self.add(None)
        self.fill(place, name, columns, rows)
        self.catalog.append((place, 0, name, 1, '2026-11-22 09:05:03', flags, None))

    def linked(self, name):
        self.catalog.append((0, 0, name, 6, '2026-11-22 09:05:03', 0x200000, None))

    def write(self, path):
        f = self.format
        self.catalog.append((2, 0, 'MSysObjects', 1, '2026-11-22 09:05:03', -0x80000000, None))
        columns = (('Id', LONG), ('ParentId', LONG), ('Name', TEXT), ('Type', INT), ('DateCreate', DATE),
                   ('Flags', LONG), ('LvProp', OLE))
        self.fill(2, 'MSysObjects', columns, self.catalog, is_system=True)
        self.pages[1] = self.data_page(bytes(4), [struct.pack('<BI', 0, 0) + bytes(64)])
        self.pages[self.maps_page] = self.data_page(bytes(4), self.maps)
        header = struct.pack('<I', 0x100) + b'Standard Jet DB\0' + struct.pack('<I', f.version - 3)
        secret = bytearray(126 if f.version == 3 else 128)  # from byte 0x18 on
        struct.pack_into('<H', secret, 0x3c - 0x18, 936)
        header += rc4(secret, struct.pack('<I', 0x6b39dac7))
        self.pages[0] = header.ljust(f.page, b'\0')
        path.write_bytes(b''.join(self.pages))


def shop(file):
    """Goods, members and bills: none of them a real shop's."""
    file.table('SP_LB', (('SPLB_ID', LONG), ('SPLBMC', TEXT)), (1, '食品'), (2, '百货'), (None, '坏的'))
    file.table(
        'spda', (('f_spbm', TEXT), ('f_spmc', TEXT), ('f_sphh', TEXT), ('f_sptm', TEXT), ('f_Ggxh', TEXT),
                 ('f_jldw', TEXT), ('f_xsdj', MONEY), ('f_pfj', MONEY), ('f_zk', SINGLE),
                 ('f_zhjj', MONEY), ('f_spcd', TEXT), ('f_splbmc', TEXT), ('kcsl', DOUBLE)),
        ('A1', "海盐'薄荷\"糖", 'HY-1', '6900000000017', '袋装 60g', '袋', 4.5, 4, 0.9, 2.3333, '虚镇', '食品', 3),
        ('A2', 'Cafe', '', None, '', '杯', 12.0001, None, None, None, None, None, None),
        ('a1', '重复的', None, None, None, None, None, None, None, None, None, None, None),
        (None, '没有编码', None, None, None, None, None, None, None, None, None, None, None))
    file.table(
        'tmda', (('sptm', TEXT), ('ggxh', MEMO), ('spbm', TEXT), ('spmc', TEXT), ('spcd', TEXT),
                 ('jldw', TEXT), ('xsdj', MONEY), ('pfj', MONEY), ('zk', SINGLE), ('cxj', MONEY),
                 ('kssj', DATE), ('jssj', DATE), ('dwbl', INT), ('zhjj', MONEY), ('splbmc', TEXT)),
        ('6900000000017', '袋装 60g', 'A1', '海盐薄荷糖', '虚镇', '袋', 4.5, 4, 0.9, 3.9, '2026-11-01 00:00:00',
         '2026-11-30 23:59:59', 12, 2.3333, '食品'),
        ('20', '', 'A2', 'Cafe', None, None, 12.0001, None, None, None, None, None, 1, None, None))
    file.table(
        'sell', (('id', LONG), ('sell_time', DATE), ('operator_id', INT), ('state', BOOL), ('应收', DECIMAL),
                 ('cash', MONEY), ('card_pay', MONEY), ('card_no', TEXT), ('member_id', LONG)),
        (7, '2026-11-20 18:30:59', 1, True, 8.1, 10, 0, '', 0),
        (9, '2026-11-21 09:00:00', 1, True, 12, 0, 12, '8001', 5),
        (10, '2026-11-21 09:10:00', 1, False, 0, 0, 0, None, None))
    file.table(
        'sellproducts', (('id', LONG), ('sellId', LONG), ('insert_Date', DATE), ('bm', TEXT), ('name', TEXT),
                         ('unit', TEXT), ('amount', DOUBLE), ('price', MONEY), ('discount', SINGLE),
                         ('money', MONEY), ('in_price', MONEY), ('splbmc', TEXT)),
        (101, 7, '2026-11-20 18:30:10', 'A1', '海盐薄荷糖', '袋', 2, 4.5, 0.9, 8.1, 2.3333, '食品'),
        (103, 9, '2026-11-21 09:00:00', 'A2', 'Cafe', '杯', 1.5, 12, 1, 18, None, None),
        (104, 9, '2026-11-21 09:00:01', 'A2', 'Cafe', '杯', -0.5, 12, 1, -6, None, None),
        (105, 10, '2026-11-21 09:10:00', 'A1', '海盐薄荷糖', '袋', 1, 4.5, 1, 4.5, None, None))
    file.table(
        '会员', (('编号', LONG), ('bh', TEXT), ('name', TEXT), ('hyzklb', INT), ('card', MONEY), ('密码', TEXT),
               ('生日', DATE), ('备注', MEMO)),
        (5, '8001', '欧阳𠮷', 2, 76.5, 'Ab1', '1899-12-29 12:00:00', LONG_TEXT),
        (3, '8002', '', None, -0.0001, None, None, '两\r\n行'))
    file.table(
        'cardStored', (('cardbh', TEXT), ('addmoney', TEXT), ('inMoney', TEXT), ('commerce', TEXT), ('bz', TEXT)),
        ('8001', '100', '100', '100', ''), ('8001', '免费', '0', '100', None))
    file.table('便条', (('内容', MEMO),), ('与收款无关',))
    file.linked('总店商品')


def old_shop(file):
    file.table('SP_LB', (('SPLB_ID', LONG), ('SPLBMC', TEXT)), (1, '食品'), (2, '百货'))
    file.table('spda', (('f_spbm', TEXT), ('f_spmc', MEMO), ('f_xsdj', MONEY), ('f_zk', SINGLE)),
               ('A1', '海盐薄荷糖', 4.5, 0.95), ('A2', None, None, None))


def main():
    folder = Path(sys.argv[1])
    for version, tables in ((4, shop), (3, old_shop)):
        file = File(version)
        tables(file)
        file.write(folder / f'sample-jet{version}.mdb')


if __name__ == '__main__':
    main()

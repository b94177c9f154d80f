#!/usr/bin/env python3
"""Makes the sample database of a trading company: make_shop.py OUT.sqlite

The same database comes out each time. An existing file of that name is replaced.
"""
import datetime
import os
import random
import sqlite3
import sys

import shop_words as words

FIRST_DAY = datetime.date(2021, 1, 4)
LAST_DAY = datetime.date(2025, 12, 30)
ORDERS = 5000
HERE = os.path.dirname(os.path.abspath(__file__))


class Dice:
    """Random choices that are the same with every version of Python."""

    def __init__(self, seed):
        self._random = random.Random(seed).random

    def chance(self, share):
        return self._random() < share

    def number(self, low, high):
        return low + int(self._random() * (high - low + 1))

    def pick(self, items):
        return items[int(self._random() * len(items))]

    def low(self, low, high):
        """A number of the range, small ones more often."""
        return low + int(self._random() ** 2 * (high - low + 1))


class Shop:
    def __init__(self, connection):
        self.db = connection
        self.dice = Dice(20210104)
        # id, country code, segment, addresses, first and last possible day of an order, slowness
        self.customers = []
        # id, list price in tenths (so that all sums of money are exact in hundredths), first and last day on sale
        self.products = []
        self.lines, self.payments, self.returns = [], [], []

    def insert(self, table, rows):
        rows = list(rows)
        if rows:
            marks = ",".join("?" * len(rows[0]))
            self.db.executemany(f'INSERT INTO "{table}" VALUES ({marks})', rows)

    def make(self):
        with open(os.path.join(HERE, "schema.sql"), encoding="utf-8") as schema:
            self.db.executescript(schema.read())
        with self.db:
            self.make_company()
            self.make_customers()
            self.make_products()
            self.make_stock()
            self.make_orders()

    def make_company(self):
        self.insert("Countries", [country[:4] for country in words.COUNTRIES])
        self.insert("Employees", [(i, *person, words.EMPLOYEE_NOTES.get(i)) for i, person in
                                  enumerate(words.EMPLOYEES, 1)])
        self.insert("Shippers", [(i, *shipper) for i, shipper in enumerate(words.SHIPPERS, 1)])
        self.insert("Warehouses", [(i, "Warehouse " + city, city) for i, city in enumerate(words.WAREHOUSES, 1)])
        self.insert("Suppliers", [(i, *supplier) for i, supplier in enumerate(words.SUPPLIERS, 1)])

    def make_customers(self):
        dice = self.dice
        people = []
        for code, _, _, _, share, cities, surnames, kinds, _ in words.COUNTRIES:
            for _ in range(share * 2):
                surname = dice.pick(surnames)
                contact = f"{dice.pick(words.GIVEN_NAMES)} {surname}" if dice.chance(0.9) else None
                segment = dice.pick("RRRRRRWWWTTP")
                people.append((f"{surname} {dice.pick(kinds)}", contact, dice.pick(cities), code, segment))
        for i in range(len(people) - 1, 0, -1):
            j = dice.number(0, i)
            people[i], people[j] = people[j], people[i]
        people[20:20] = words.NAMED_CUSTOMERS

        rows, addresses = [], []
        for i, (company, contact, city, code, segment) in enumerate(people, 1):
            since = FIRST_DAY + datetime.timedelta(days=dice.low(-700, 1600))
            phone = f"+{dice.number(30, 49)} {dice.number(20, 99)} 555{dice.number(1000, 9999)}"
            rows.append((i, company, contact, phone if dice.chance(0.85) else None, city, self.post_code(), code, segment,
                         dice.pick(words.SALES_STAFF) if dice.chance(0.8) else None, since.isoformat(),
                         dice.number(1, 40) * 500 if dice.chance(0.75) else None, int(dice.chance(0.4)),
                         dice.pick(words.CUSTOMER_NOTES) if dice.chance(0.25) else None))
            own = self.make_addresses(i, city, code, segment, addresses)
            if not dice.chance(0.06):  # some never order
                leaves = since + datetime.timedelta(days=dice.number(200, 1500)) if dice.chance(0.15) else LAST_DAY
                self.customers.append((i, code, segment, own, since, leaves, dice.low(0, 120)))
        self.insert("Customers", rows)
        self.insert("Addresses", addresses)

    def post_code(self):
        return f"{self.dice.number(1000, 99999):05}" if self.dice.chance(0.93) else None

    def make_addresses(self, customer, city, code, segment, addresses):
        """Appends the customer's addresses, the first for invoices, and returns their numbers."""
        dice = self.dice
        own = []
        for i in range(1 + dice.low(0, 3 if segment == "W" else 1)):
            if i > 0 and segment == "W" and dice.chance(0.3):
                code = dice.pick(words.COUNTRIES)[0]
            country = next(c for c in words.COUNTRIES if c[0] == code)
            if i > 0:
                city = dice.pick(country[5])
            street = country[8].format(dice.pick(words.STREET_NAMES), dice.number(1, 180))
            own.append(len(addresses) + 1)
            addresses.append((own[-1], customer, street, city, self.post_code(), code))
        return own

    def make_products(self):
        dice = self.dice
        rows = []
        self.insert("Categories", [(i, c[0], c[1]) for i, c in enumerate(words.CATEGORIES, 1)])
        for category, (name, _, suppliers, products) in enumerate(words.CATEGORIES, 1):
            for product, price in products:
                tenths = round(price * 10)
                introduced = FIRST_DAY + datetime.timedelta(days=dice.low(-900, 1200))
                if product in words.NEW_PRODUCTS:
                    introduced = datetime.date(2025, 11, dice.number(10, 28))
                number = len(rows) + 1
                gone = introduced.year < 2020 and dice.chance(0.3)
                rows.append((number, product, category, dice.pick(suppliers), dice.pick([1, 1, 1, 2, 6, 10, 12]),
                             round(tenths * dice.number(45, 70) / 100) / 10, tenths / 10,
                             dice.number(4, 400) / 20 if dice.chance(0.9) else None, introduced.isoformat(), int(gone),
                             f"{name}: {product}, as in our catalogue." if dice.chance(0.4) else None))
                last = datetime.date(2024, 3, 31) if gone else LAST_DAY
                if product not in words.NEW_PRODUCTS:
                    self.products.append((number, tenths, introduced, last))
        self.insert("Products", rows)
        self.product_count = len(rows)

    def make_stock(self):
        dice = self.dice
        rows = []
        for product in range(1, self.product_count + 1):
            for warehouse in range(1, len(words.WAREHOUSES) + 1):
                if dice.chance(0.35):
                    continue
                level = dice.pick([5, 10, 20, 50])
                counted = datetime.datetime(2025, 12, dice.number(1, 19), dice.number(7, 16), dice.number(0, 59))
                rows.append((product, warehouse, dice.low(0, level * 6), level,
                             counted.isoformat(" ") if dice.chance(0.8) else None))
        self.insert("Stock", rows)

    def make_orders(self):
        rows = []
        for number, day in enumerate(sorted(self.order_day() for _ in range(ORDERS)), 1):
            rows.append(self.make_order(number, day))
        self.insert("Orders", rows)
        self.insert("Order Lines", self.lines)
        self.insert("Payments", [(i, *payment) for i, payment in enumerate(sorted(self.payments, key=lambda p: p[1]), 1)])
        self.insert("Returns", [(i, *back) for i, back in enumerate(sorted(self.returns, key=lambda r: r[2]), 1)])

    def order_day(self):
        """A working day, later years and the months before Christmas more often."""
        days = (LAST_DAY - FIRST_DAY).days
        while True:
            day = FIRST_DAY + datetime.timedelta(days=self.dice.number(0, days))
            share = 0.35 + 0.1 * (day.year - FIRST_DAY.year) + (0.2 if day.month in (10, 11) else 0)
            if self.dice.chance(share * (1 if day.weekday() < 5 else 0.05)):
                return day

    def make_order(self, number, day):
        dice = self.dice
        customer, code, segment, addresses, first, last, slowness = dice.pick(self.customers)
        while not first <= day <= last or dice.chance(slowness / 160):
            customer, code, segment, addresses, first, last, slowness = dice.pick(self.customers)
        taken = f"{dice.number(8, 16) if dice.chance(0.94) else dice.number(17, 21):02}:{dice.number(0, 59):02}:00"
        express = dice.chance(0.1)
        required = day + datetime.timedelta(days=dice.number(2, 4) if express else dice.number(7, 21))
        late = dice.chance(0.12)
        lag = (required - day).days + dice.number(1, 9) if late else dice.number(1, (required - day).days)
        shipped = datetime.datetime.combine(day, datetime.time(dice.number(7, 18), dice.pick([0, 15, 30, 45])))
        shipped += datetime.timedelta(days=lag)
        status = "S"
        if dice.chance(0.02):
            status = "C"
        elif shipped.date() > LAST_DAY:
            status = "H" if dice.chance(0.2) else "O"
        shipper = dice.number(1, len(words.SHIPPERS))
        billing = addresses[0]
        shipping = dice.pick(addresses)
        freight = 0 if segment == "W" and dice.chance(0.5) else dice.low(10, 380) / 4
        quantities, total = self.make_lines(number, day, segment)
        if status == "S":
            self.make_payments(number, shipped, total + round(freight * 100))
            self.make_returns(number, shipped, quantities)
        return (number, customer, self.seller(day, code), day.isoformat(), taken, required.isoformat(),
                shipped.isoformat(" ") if status == "S" else None, shipper if status == "S" else None, status,
                int(express), freight, billing, shipping,
                dice.pick(words.ORDER_REMARKS) if dice.chance(0.12) else None)

    def seller(self, day, code):
        """One of those employed on the day; each country has one who usually looks after it."""
        hired = [p for p in [*words.SALES_STAFF, 13] if words.EMPLOYEES[p - 1][4] <= day.isoformat()
                 and (words.EMPLOYEES[p - 1][5] or "9999") >= day.isoformat()]
        return hired[sum(map(ord, code)) % len(hired)] if self.dice.chance(0.6) else self.dice.pick(hired)

    def make_lines(self, number, day, segment):
        """Appends the order's lines and returns their quantities and their worth in hundredths."""
        dice = self.dice
        quantities, total = [], 0
        taken = set()
        for line in range(1, dice.low(1, 6) + 1):
            product, tenths, introduced, last = dice.pick(self.products)
            while introduced > day or last < day or product in taken:
                product, tenths, introduced, last = dice.pick(self.products)
            taken.add(product)
            quantity = dice.low(1, {"W": 60, "T": 24}.get(segment, 8))
            discount = dice.pick([0, 1, 1, 2, 2, 3]) if segment == "W" else dice.pick([0, 0, 0, 0, 1])
            price = tenths * (100 - 3 * (LAST_DAY.year - day.year)) // 100
            self.lines.append((number, line, product, quantity, price / 10, discount / 10))
            quantities.append(quantity)
            total += price * quantity * (10 - discount)
        return quantities, total

    def make_payments(self, order, shipped, total):
        dice = self.dice
        paid = shipped + datetime.timedelta(days=dice.low(0, 45), minutes=dice.number(0, 400))
        if paid.date() > LAST_DAY or dice.chance(0.02):
            return
        method = dice.pick(["Transfer", "Transfer", "Transfer", "Card", "Card", "Direct debit", "Cash"])
        if dice.chance(0.08) and total > 50000:
            first = total // 2
            self.payments.append((order, paid.isoformat(" "), method, first / 100))
            paid += datetime.timedelta(days=dice.number(14, 40))
            total -= first
            if paid.date() > LAST_DAY:
                return
        self.payments.append((order, paid.isoformat(" "), method, total / 100))

    def make_returns(self, order, shipped, quantities):
        dice = self.dice
        for line, quantity in enumerate(quantities, 1):
            if not dice.chance(0.025):
                continue
            day = shipped.date() + datetime.timedelta(days=dice.number(2, 30))
            if day > LAST_DAY:
                continue
            self.returns.append((order, line, day.isoformat(), dice.number(1, quantity),
                                 dice.pick(["Damaged", "Damaged", "Wrong item", "Not needed", "Too late"]),
                                 int(dice.chance(0.7)), dice.pick(words.RETURN_REMARKS) if dice.chance(0.4) else None))


def main():
    if len(sys.argv) != 2 or sys.argv[1].startswith("-"):
        sys.exit(__doc__)
    if os.path.exists(sys.argv[1]):
        os.remove(sys.argv[1])
    connection = sqlite3.connect(sys.argv[1])
    Shop(connection).make()
    faults = connection.execute("PRAGMA foreign_key_check").fetchall()
    connection.close()
    if faults:
        sys.exit(f"rows that refer to nothing: {faults[:5]}")


if __name__ == "__main__":
    main()

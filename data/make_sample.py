#!/usr/bin/env python3
"""Makes sample.db: two years of a small company that imports tea, coffee, spices and the pots to go with them.

    python3 data/make_sample.py [OUTPUT]

The content is the same on every run; every person and company in it is invented. The standard library is enough.
"""
import datetime
import os
import random
import sqlite3
import sys

from sample_texts import (CATEGORIES, CUSTOMER_NOTES, EMPLOYEES, NOTES_BY_LANGUAGE, ORDER_REMARKS, PLACES, PRODUCTS,
                          SELLER_OF_LANGUAGE, SUPPLIER_NAMES, SUPPLIER_NOTES,
                          SUPPLIERS_OF_CATEGORY)

FIRST_DAY = datetime.date(2023, 7, 3)
LAST_DAY = datetime.date(2025, 6, 30)
CUSTOMERS_PER_PLACE = 12
ORDERS = 1600

SCHEMA = """
-- The first thing that somebody sees who opens the file, so it stands before the tables it is made of.
CREATE VIEW orders_overview AS
SELECT o.order_id AS "Order", o.ordered_on AS "Date", c.name AS "Customer", c.city AS "City", c.country AS "Country",
       o.item_count AS "Items", o.total AS "Total", o.paid AS "Paid", o.status AS "Status", o.shipped_on AS "Shipped",
       e.name AS "Sales rep", o.remark AS "Remark"
FROM orders o
JOIN customers c ON c.customer_id = o.customer_id
JOIN employees e ON e.employee_id = o.employee_id
ORDER BY o.ordered_on DESC, o.order_id DESC;

CREATE TABLE customers (
    customer_id INTEGER PRIMARY KEY,
    name VARCHAR(80) NOT NULL,
    contact VARCHAR(60),
    email VARCHAR(80),
    phone VARCHAR(30),
    street VARCHAR(80) NOT NULL,
    postcode VARCHAR(12),
    city VARCHAR(40) NOT NULL,
    country VARCHAR(40) NOT NULL,
    language VARCHAR(20) NOT NULL,
    customer_since DATE NOT NULL,
    credit_limit DECIMAL(10,2),
    discount REAL NOT NULL DEFAULT 0,
    newsletter BOOLEAN NOT NULL
);

CREATE TABLE categories (
    category_id INTEGER PRIMARY KEY,
    name VARCHAR(40) NOT NULL,
    description TEXT
);

CREATE TABLE suppliers (
    supplier_id INTEGER PRIMARY KEY,
    name VARCHAR(80) NOT NULL,
    contact VARCHAR(60),
    city VARCHAR(40) NOT NULL,
    country VARCHAR(40) NOT NULL,
    lead_days INTEGER NOT NULL,
    organic BOOLEAN NOT NULL,
    last_visit DATE,
    notes TEXT
);

CREATE TABLE products (
    product_id INTEGER PRIMARY KEY,
    sku CHAR(8) NOT NULL UNIQUE,
    name VARCHAR(80) NOT NULL,
    category_id INTEGER NOT NULL REFERENCES categories,
    supplier_id INTEGER NOT NULL REFERENCES suppliers,
    unit VARCHAR(12) NOT NULL,
    purchase_price DECIMAL(10,2) NOT NULL,
    price DECIMAL(10,2) NOT NULL,
    in_stock INTEGER NOT NULL,
    reorder_level INTEGER NOT NULL,
    discontinued BOOLEAN NOT NULL,
    best_before DATE
);

CREATE TABLE employees (
    employee_id INTEGER PRIMARY KEY,
    name VARCHAR(60) NOT NULL,
    job VARCHAR(40) NOT NULL,
    reports_to INTEGER REFERENCES employees,
    hired_on DATE NOT NULL,
    left_on DATE,
    salary DECIMAL(10,2) NOT NULL,
    full_time BOOLEAN NOT NULL
);

CREATE TABLE orders (
    order_id INTEGER PRIMARY KEY,
    customer_id INTEGER NOT NULL REFERENCES customers,
    employee_id INTEGER NOT NULL REFERENCES employees,
    ordered_on DATE NOT NULL,
    shipped_on DATE,
    status VARCHAR(12) NOT NULL,
    item_count INTEGER NOT NULL,
    total DECIMAL(10,2) NOT NULL,
    paid BOOLEAN NOT NULL,
    remark VARCHAR(120)
);

CREATE TABLE order_lines (
    order_id INTEGER NOT NULL REFERENCES orders,
    line_no INTEGER NOT NULL,
    product_id INTEGER NOT NULL REFERENCES products,
    quantity INTEGER NOT NULL,
    unit_price DECIMAL(10,2) NOT NULL,
    discount REAL NOT NULL DEFAULT 0,
    PRIMARY KEY (order_id, line_no)
) WITHOUT ROWID;

CREATE TABLE payments (
    payment_id INTEGER PRIMARY KEY,
    order_id INTEGER NOT NULL REFERENCES orders,
    received_at DATETIME NOT NULL,
    amount DECIMAL(10,2) NOT NULL,
    method VARCHAR(12) NOT NULL,
    reference VARCHAR(24)
);

CREATE TABLE notes (
    note_id INTEGER PRIMARY KEY,
    customer_id INTEGER NOT NULL REFERENCES customers,
    written_at DATETIME NOT NULL,
    author_id INTEGER NOT NULL REFERENCES employees,
    pinned BOOLEAN NOT NULL,
    body TEXT NOT NULL
);

CREATE VIEW sales_by_month AS
SELECT strftime('%Y-%m', ordered_on) AS "Month", count(*) AS "Orders", sum(item_count) AS "Items",
       round(sum(total), 2) AS "Sales", round(avg(total), 2) AS "Average order"
FROM orders WHERE status <> 'cancelled' GROUP BY 1 ORDER BY 1;

CREATE VIEW products_to_reorder AS
SELECT p.sku AS "SKU", p.name AS "Product", s.name AS "Supplier", p.in_stock AS "In stock",
       p.reorder_level AS "Reorder at", s.lead_days AS "Lead days"
FROM products p JOIN suppliers s ON s.supplier_id = p.supplier_id
WHERE p.in_stock < p.reorder_level AND NOT p.discontinued ORDER BY p.in_stock;

CREATE INDEX orders_by_date ON orders (ordered_on);
CREATE INDEX payments_by_order ON payments (order_id);
"""


class Dice:
    """Chance that gives the same results with every version of Python: only random() is promised to."""

    def __init__(self, seed):
        self.source = random.Random(seed)

    def below(self, count):
        return int(self.source.random() * count)

    def between(self, least, most):
        return least + self.below(most - least + 1)

    def happens(self, probability):
        return self.source.random() < probability

    def pick(self, items):
        return items[self.below(len(items))]

    def shuffled(self, items):
        rest = list(items)
        return [rest.pop(self.below(len(rest))) for _ in range(len(rest))]


def money(cents):
    return cents / 100


def make_customers(dice):
    customers = []
    for place in PLACES:
        shops = dice.shuffled([(family, kind) for family in place["families"] for kind in place["shops"]])
        for family, kind in shops[:CUSTOMERS_PER_PLACE]:
            customers.append(make_customer(dice, place, family, kind))
    return [(number, *row) for number, row in enumerate(dice.shuffled(customers), start=1)]


def make_customer(dice, place, family, kind):
    city, country, prefix = dice.pick(place["cities"])
    since = datetime.date(2014, 1, 1) + datetime.timedelta(days=dice.below(3450))
    contact = place["order"].format(given=dice.pick(place["given"]), family=family)
    phone = f"{prefix} {dice.between(20, 899)} {dice.between(1000, 9999)} {dice.between(10, 99)}"
    mail = f"{dice.pick(['office', 'orders', 'hello', 'info', 'kitchen'])}@shop{dice.between(100, 999)}.example"
    return (
        kind.format(family),
        contact if dice.happens(0.9) else None,
        mail if dice.happens(0.85) else None,
        phone if dice.happens(0.8) else None,
        place["street"].format(dice.pick(place["streets"]), dice.between(1, 180)),
        f"{dice.between(1000, 99999):05d}" if dice.happens(0.92) else None,
        city,
        country,
        place["language"],
        since.isoformat(),
        money(dice.between(5, 150) * 10000) if dice.happens(0.7) else None,
        dice.pick([0, 0, 0, 0.02, 0.05, 0.075, 0.1]),
        int(dice.happens(0.6)),
    )


def make_suppliers(dice):
    suppliers = []
    for number, (name, contact, city, country) in enumerate(SUPPLIER_NAMES, start=1):
        visit = LAST_DAY - datetime.timedelta(days=dice.between(20, 900))
        suppliers.append((number, name, contact, city, country, dice.between(5, 60), int(dice.happens(0.45)),
                          visit.isoformat() if dice.happens(0.7) else None,
                          dice.pick(SUPPLIER_NOTES) if dice.happens(0.6) else None))
    return suppliers


def make_products(dice):
    products = []
    for category, (_, names, units, (low, high)) in enumerate(PRODUCTS, start=1):
        for name in names:
            base = dice.between(low, high)
            supplier = dice.pick(SUPPLIERS_OF_CATEGORY[category - 1])
            for unit, factor in units:
                number = len(products) + 1
                price = max(95, int(base * factor) // 50 * 50 - 5)
                keeps = LAST_DAY + datetime.timedelta(days=dice.between(60, 900))
                products.append((number, f"{chr(64 + category)}{number:04d}-{dice.between(10, 99)}", name, category,
                                 supplier, unit, money(int(price * dice.between(45, 68) / 100)), money(price),
                                 dice.pick([0, dice.between(1, 30), dice.between(20, 400), dice.between(20, 400)]),
                                 dice.pick([10, 20, 25, 40, 60]), int(dice.happens(0.06)),
                                 keeps.isoformat() if category < 10 else None))
    return products


def make_employees(dice):
    employees = []
    for number, (name, job, boss) in enumerate(EMPLOYEES, start=1):
        hired = datetime.date(2012, 2, 1) + datetime.timedelta(days=dice.below(3700))
        left = LAST_DAY - datetime.timedelta(days=dice.between(15, 300)) if number in (9, 14) else None
        salary = 3_400_000 + dice.below(180) * 10_000 + {None: 5_200_000, 1: 2_500_000}.get(boss, 0)
        employees.append((number, name, job, boss, hired.isoformat(), left and left.isoformat(), money(salary),
                          int(dice.happens(0.8))))
    return employees


def status_of(dice, ordered):
    age = (LAST_DAY - ordered).days
    if dice.happens(0.04):
        return "cancelled"
    if age < 3:
        return dice.pick(["new", "packing", "packing", "shipped"])
    if age < 6:
        return dice.pick(["packing", "shipped", "shipped", "delivered", "delivered", "on hold"])
    if age < 20:
        return dice.pick(["shipped", "delivered", "delivered"])
    return "returned" if dice.happens(0.02) else "delivered"


def make_order_dates(dice):
    span = (LAST_DAY - FIRST_DAY).days
    dates = []
    while len(dates) < ORDERS:
        # Business grows: a later day is likelier than an earlier one.
        day = FIRST_DAY + datetime.timedelta(days=max(dice.below(span + 1), dice.below(span + 1)))
        if day.weekday() < 5 or dice.happens(0.15):
            dates.append(day)
    return sorted(dates)


def make_lines(dice, order_id, products, customer_discount):
    lines = []
    cents = 0
    chosen = dice.shuffled(range(len(products)))[:dice.pick([1, 2, 2, 3, 3, 3, 4, 5, 6])]
    for line_no, product in enumerate(chosen, start=1):
        price = round(products[product][7] * 100)
        quantity = dice.pick([1, 2, 2, 3, 4, 5, 6, 8, 10, 12, 12, 20, 24])
        discount = customer_discount if dice.happens(0.6) else 0
        lines.append((order_id, line_no, products[product][0], quantity, money(price), discount))
        cents += round(price * quantity * (1 - discount))
    return lines, cents


def payment_rows(dice, order_id, ordered, cents, first_id):
    parts = [cents] if dice.happens(0.9) or cents < 20000 else [cents // 2, cents - cents // 2]
    rows = []
    day = ordered
    for part in parts:
        day = min(day + datetime.timedelta(days=dice.between(0, 21)), LAST_DAY)
        method = dice.pick(["card", "card", "transfer", "transfer", "transfer", "cash"])
        reference = None if method == "cash" else f"{method[0].upper()}{day:%y%m%d}-{dice.between(10000, 99999)}"
        received = f"{day.isoformat()} {dice.between(7, 18):02d}:{dice.between(0, 59):02d}:{dice.between(0, 59):02d}"
        rows.append((first_id + len(rows), order_id, received, money(part), method, reference))
    return rows


def make_orders(dice, customers, products):
    orders, lines, payments = [], [], []
    for order_id, ordered in enumerate(make_order_dates(dice), start=20001):
        customer = dice.pick(customers)
        language = customer[9]
        status = status_of(dice, ordered)
        order_lines, cents = make_lines(dice, order_id, products, customer[12])
        is_sent = status in ("shipped", "delivered", "returned")
        shipped = min(ordered + datetime.timedelta(days=dice.between(1, 4)), LAST_DAY) if is_sent else None
        paid = status != "cancelled" and dice.happens(0.93 if (LAST_DAY - ordered).days > 30 else 0.6)
        remark = dice.pick(ORDER_REMARKS["*"] + 4 * ORDER_REMARKS.get(language, [])) if dice.happens(0.35) else None
        orders.append((order_id, customer[0], SELLER_OF_LANGUAGE[language], ordered.isoformat(),
                       shipped and shipped.isoformat(), status, sum(line[3] for line in order_lines), money(cents), int(paid), remark))
        lines += order_lines
        if paid:
            payments += payment_rows(dice, order_id, ordered, cents, len(payments) + 1)
    return orders, lines, payments


def make_notes(dice, customers, employees):
    notes = []
    for customer in customers:
        for _ in range(dice.pick([0, 0, 1, 1, 1, 2, 3])):
            day = FIRST_DAY + datetime.timedelta(days=dice.below((LAST_DAY - FIRST_DAY).days))
            texts = CUSTOMER_NOTES + 4 * NOTES_BY_LANGUAGE.get(customer[9], [])
            body = dice.pick(texts).format(contact=customer[2] or "the owner", name=customer[1])
            written = f"{day.isoformat()} {dice.between(8, 17):02d}:{dice.between(0, 59):02d}"
            notes.append((len(notes) + 1, customer[0], written, dice.pick(employees)[0], int(dice.happens(0.12)), body))
    return notes


def fill(connection, table, rows):
    connection.executemany(f"INSERT INTO {table} VALUES ({','.join('?' * len(rows[0]))})", rows)


def make(path):
    if os.path.exists(path):
        os.remove(path)
    dice = Dice(1848)
    connection = sqlite3.connect(path)
    connection.executescript("PRAGMA page_size = 4096;" + SCHEMA)
    customers = make_customers(dice)
    suppliers = make_suppliers(dice)
    products = make_products(dice)
    employees = make_employees(dice)
    orders, lines, payments = make_orders(dice, customers, products)
    fill(connection, "customers", customers)
    fill(connection, "categories", [(i, name, text) for i, (name, text) in enumerate(CATEGORIES, start=1)])
    fill(connection, "suppliers", suppliers)
    fill(connection, "products", products)
    fill(connection, "employees", employees)
    fill(connection, "orders", orders)
    fill(connection, "order_lines", lines)
    fill(connection, "payments", payments)
    fill(connection, "notes", make_notes(dice, customers, employees))
    connection.commit()
    connection.close()


if __name__ == "__main__":
    make(sys.argv[1] if len(sys.argv) > 1 else os.path.join(os.path.dirname(os.path.abspath(__file__)), "sample.db"))

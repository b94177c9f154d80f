-- one-day
select OrderID, Freight from Orders where OrderDate = '2025-11-18'

-- since-a-day
select OrderID, OrderDate from Orders where OrderDate >= '2025-11-01' and OrderDate < '2025-12-01'

-- between-days
SELECT OrderID, CustomerID, OrderDate FROM Orders WHERE OrderDate BETWEEN '2025-12-01' AND '2025-12-24'

-- day-of-another-shape
-- empty
select OrderID from Orders where OrderDate = '18.11.2025'

-- day-without-zeroes
-- Compared as text: not what the writer meant, but what the statement says.
select count(*) from Orders where OrderDate > '2025-9-1' and OrderDate < '2026'

-- only-a-year
select OrderID, OrderDate from Orders where OrderDate > '2025-12' and OrderDate < '2025-12-10'

-- times-of-day
select OrderID, OrderTime from Orders where OrderTime > '20:00:00'

-- time-without-seconds
select OrderID, OrderTime from Orders where OrderTime >= '21:30'

-- times-not-between
select OrderID, OrderTime from Orders
where OrderTime not between '08:00:00' and '17:59:59' and OrderDate >= '2024-01-01'

-- moment-as-written
select PaymentID, PaidAt from Payments where PaidAt >= '2025-12-20 12:00:00'

-- moment-compared-with-a-day
-- A day as text lies before every moment of it.
select PaymentID, PaidAt from Payments where PaidAt > '2025-12-20' and PaidAt <= '2025-12-22'

-- moment-with-a-letter-t
select PaymentID, PaidAt from Payments where PaidAt > '2025-12-20T12:00:00'

-- fraction-of-a-second
select OrderID, ShippedAt from Orders where ShippedAt >= '2025-12-28 07:00:00.000'

-- day-of-a-moment
select OrderID, ShippedAt from Orders where date(ShippedAt) = '2025-10-10'

-- month-by-strftime
select OrderID, OrderDate from Orders where strftime('%Y-%m', OrderDate) = '2025-07'

-- year-by-substr
select OrderID from Orders where cast(substr(OrderDate, 1, 4) as integer) = 2021

-- days-of-the-weekend
select OrderID, strftime('%w', OrderDate) as Weekday from Orders where strftime('%w', OrderDate) in ('0', '6')

-- a-month-later
select OrderID, OrderDate from Orders where OrderDate > date('2025-01-01', '+11 months', '+10 days')

-- late-by-days
select OrderID, julianday(date(ShippedAt)) - julianday(RequiredDate) as DaysLate
from Orders
where julianday(date(ShippedAt)) - julianday(RequiredDate) > 8

-- shipped-late
select OrderID, RequiredDate, ShippedAt from Orders where date(Orders.ShippedAt) > Orders.RequiredDate and OrderDate > '2025-06-30'

-- decimal-fraction
select OrderID, Freight from Orders where Freight = 22.75

-- decimal-with-zeroes
select OrderID, LineNo, UnitPrice from "Order Lines" where UnitPrice = 16.900 and Quantity >= 5.0

-- integer-column-with-a-fraction
select OrderID, Quantity from "Order Lines" where Quantity > 57.5

-- number-of-many-digits
select OrderID from Orders where Freight > 94.99999999999999

-- about-a-price
select ProductName, ListPrice from Products where abs(ListPrice - 25) <= 2

-- boolean-as-a-word
select ProductName from Products where Discontinued = true

-- boolean-as-false
select SupplierName, LeadDays from Suppliers where Preferred is false

-- boolean-not-zero
select OrderID from Orders where Express <> 0 and Status = 'C'

-- boolean-in-quotes
select CountryName from Countries where InCustomsUnion = '0'

-- boolean-as-text-true
-- empty
select CountryName from Countries where InCustomsUnion = 'true'

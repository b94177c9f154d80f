-- customers-of-linz
select Company, City from Customers where City = 'Linz'

-- not-in-germany
SELECT Customers.Company, Customers.CountryCode FROM Customers WHERE Customers.CountryCode <> 'DE'

-- not-in-germany-other-sign
select c.Company from Customers c where c.CountryCode != 'DE'

-- large-credit
select Company, CreditLimit from Customers where CreditLimit > 15000

-- small-credit-inclusive
select Company, CreditLimit
from Customers
where CreditLimit <= 1500

-- value-before-column
-- The value stands on the left: the sign must turn round with it.
select Company, CreditLimit from Customers where 15000 <= CreditLimit

-- equal-with-value-before-column
select OrderID, OrderDate from Orders where 'C' = Status

-- double-equals-sign
select ProductName from Products where CategoryID == 3

-- number-in-quotes
select OrderID, Freight from Orders where Freight > '94'

-- text-without-quotes
-- SQLite compares a text column with a number as text, so that this finds what the number's digits are.
select Company, PostCode from Customers where PostCode >= 98000

-- segment-in-wrong-case
-- empty
select Company from Customers where Segment = 'w'

-- upper-bound-of-text
SELECT LastName, FirstName FROM Employees WHERE LastName < 'F'

-- greater-without-blanks
select ProductName,ListPrice from Products where ListPrice>=149

-- two-bounds
select ProductName, ListPrice from Products where ListPrice > 20 and ListPrice < 25

-- all-columns
select * from Warehouses

-- all-columns-of-some-rows
select * from Customers where CountryCode = 'JP'

-- all-columns-and-one-more
select s.*, s.City || '!' as Loud from Suppliers s

-- no-condition
select CountryCode, CountryName, Region from Countries

-- boolean-as-a-number
select Company from Customers where Newsletter = 1 and Segment = 'P'

-- boolean-on-its-own
select OrderID, OrderDate from Orders where Express and OrderDate >= '2025-06-01'

-- condition-always-true
-- What report generators begin with.
select ShipperName from Shippers where 1=1 and ShipperID > 1

-- condition-never-true
-- empty
select Company from Customers where 1 = 0

-- equal-to-null
-- empty
select Company, Phone from Customers where Phone = null

-- memo-equal-to-a-text
select Company from Customers where Notes = 'Pays late, but always pays.'

-- blank-at-the-end
-- empty
select SupplierName from Suppliers where City = 'Odense '

-- negative-number
select ProductName, ListPrice from Products where ListPrice > -5 and ProductID <= 10

-- number-with-exponent
select FirstName, LastName from Employees where Salary >= 4.4e3

-- number-without-a-leading-zero
select OrderID, LineNo, Discount from "Order Lines" where Discount > .25 and OrderID < 700

-- hexadecimal-number
select ProductID, ProductName from Products where ProductID < 0x10

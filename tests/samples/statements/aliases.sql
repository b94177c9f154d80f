-- two-columns-exchange-their-names
-- ordered
select Company as City, City as Company, CustomerID from Customers
where City = 'Graz' order by City, Company, CustomerID

-- alias-hides-the-column-in-order-by
-- ordered
select -Freight as Freight, OrderID from Orders where OrderDate >= '2025-12-15' order by Freight, OrderID

-- column-with-its-table-in-order-by
-- ordered
select -Freight as Freight, OrderID from Orders where OrderDate >= '2025-12-15' order by Orders.Freight, OrderID

-- column-in-an-expression-of-order-by
-- An alias counts only alone: "Freight + 0" is the column.
-- ordered
select -Freight as Freight, OrderID from Orders where OrderDate >= '2025-12-15' order by Freight + 0, OrderID

-- alias-hides-no-column-in-where
select upper(City) as City, CustomerID from Customers where City = 'Linz'

-- alias-hides-no-column-in-group-by
-- The groups are those of the column, although the alias says otherwise.
select Segment as Status, count(*) from Customers group by Segment

-- alias-of-a-count-is-the-name-of-a-column
-- ordered
select Status, count(*) as OrderID from Orders group by Status order by OrderID, Status

-- alias-in-an-expression-of-having
select CustomerID, count(*) as n from Orders group by CustomerID having n % 10 = 0 and n > 20

-- alias-in-an-expression-of-order-by
-- ordered
select CustomerID as a, CreditLimit as b from Customers where CreditLimit > 15000 order by a + b desc, a

-- alias-written-in-other-letters
-- ordered
select CountryCode as code, count(*) as Number from Customers group by CODE order by NUMBER desc, Code

-- alias-is-a-word-of-sql
-- ordered
select CountryCode as "select", CountryName as "order by" from Countries order by "order by" desc, "select"

-- aliases-full-of-signs
select ShipperName as "a;b--c", Phone as "it's ""quoted"" @1" from Shippers

-- unknown-columns-with-the-names-of-each-other
-- ordered
select BillingAddressID as ShippingAddressID, ShippingAddressID as BillingAddressID, OrderID from Orders
where BillingAddressID <> ShippingAddressID and OrderDate >= '2025-11-01'
order by ShippingAddressID, OrderID

-- sorted-twice-by-one-column
-- ordered
select SupplierID, LeadDays from Suppliers order by LeadDays desc, LeadDays, SupplierID

-- sorted-by-constants
-- ordered
select SupplierName from Suppliers order by 1 + 1, 'x', SupplierID

-- text-with-the-name-of-a-column
-- ordered
select 'OrderID' as x, OrderID from Orders where OrderDate >= '2025-12-28' order by 'OrderID', OrderID desc

-- signs-of-formulas-in-texts
select ShipperName, '@1' as a, '@@' as b, 'x@f' as c from Shippers where ShipperName <> '@1' and Phone not like '%@2%'

-- group-by-a-column-that-the-model-lacks
-- Orders have a column of that name, which GROUP BY prefers to the alias.
select count(*) as n, 'x' as EmployeeID from Orders group by EmployeeID

-- having-on-a-column-that-the-model-lacks
-- empty
select EmployeeID, count(*) as ShipperID from Orders where ShipperID = 2 group by EmployeeID having ShipperID > 2

-- expression-of-a-column-that-the-model-lacks-in-order-by
-- ordered
select -OrderID as EmployeeID, OrderID from Orders where OrderDate >= '2025-12-15' order by EmployeeID + 0, OrderID

-- sorted-by-an-unknown-column-beside-its-negative
-- The alias that the query gives to the expression must not be "EmployeeID".
-- ordered
select -EmployeeID, OrderID from Orders where OrderDate >= '2025-12-15' order by EmployeeID, OrderID

-- alias-with-a-collation-in-order-by
-- ordered
select -Freight as Freight, OrderID from Orders where OrderDate >= '2025-12-15' order by Freight collate nocase, OrderID

-- alias-in-single-quotes-without-as
select City 'Town', CountryCode from Suppliers

-- null-in-brackets-as-a-column
select (null), "null", "nothing", ShipperName from Shippers

-- constant-as-a-group
select 5, count(*) from Customers group by 1

-- name-in-double-quotes-that-is-a-text
select FirstName || "' '" || LastName as Name from Employees

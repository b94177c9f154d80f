-- margin-as-a-column
select ProductName, ListPrice - PurchasePrice from Products where CategoryID = 2

-- margin-as-a-condition
select ProductName from Products where ListPrice - PurchasePrice < 5

-- margin-with-factor
select ProductName from Products where ListPrice * 100 >= PurchasePrice * (100 + 90)

-- column-against-column
select ProductID, WarehouseID from Stock where OnHand < ReorderLevel

-- column-equal-to-column
select OrderID from Orders where BillingAddressID = ShippingAddressID and OrderDate >= '2025-10-01'

-- column-unequal-to-column
select OrderID, BillingAddressID, ShippingAddressID from Orders
where BillingAddressID <> ShippingAddressID and OrderDate >= '2025-10-01'

-- column-in-columns
select OrderID from Orders where EmployeeID in (CustomerID, ShipperID)

-- column-like-column
select Company, City from Customers where Company like '%' || substr(City, 1, 3) || '%'

-- columns-of-two-tables-compared
select c.Company, a.City from Customers c, Addresses a where a.CustomerID = c.CustomerID and a.City <> c.City and c.Segment = 'W'

-- line-worth
select OrderID, LineNo, Quantity * UnitPrice * (1 - Discount) as Worth
from "Order Lines"
where Quantity * UnitPrice > 3000

-- precedence-of-arithmetic
select ProductID, ListPrice + PurchasePrice * 2 - 1, (ListPrice + PurchasePrice) * 2 from Products where ProductID <= 5

-- unary-signs
select ProductID, -ListPrice, +ListPrice, - -ListPrice from Products where -ProductID > -4

-- whole-division-and-rest
select OrderID, OrderID / 7, OrderID % 7 from Orders where OrderID % 500 = 0

-- bits-of-a-number
select ProductID, ProductID & 3, ProductID | 8, ProductID << 1 from Products where ProductID & 15 = 15

-- name-and-first-name
select FirstName || ' ' || LastName as Name from Employees where PartTime = 1

-- concatenation-as-a-condition
select EmployeeID from Employees where FirstName || LastName like '%oH%' or FirstName || ' ' || LastName = 'Tom Ashworth'

-- company-and-city
select Customers.Company || ', ' || Customers.City from Customers where CountryCode = 'FR'

-- without-regard-to-case-lower
select Company from Customers where lower(Company) like '%garden%'

-- without-regard-to-case-upper
select Company, City from Customers where upper(City) = 'LEIPZIG'

-- functions-nested
select upper(substr(trim(Company), 1, 3)) as Short from Customers where length(City) = 4

-- coalesce-in-both-places
select Company, coalesce(CreditLimit, 0) from Customers where coalesce(CreditLimit, 0) < 1000

-- rounded-prices
select ProductName, round(ListPrice * 1.19, 2) from Products where round(ListPrice) = 25

-- case-when
select Company, case when CreditLimit is null then 'unknown' when CreditLimit > 10000 then 'high' else 'low' end as Credit
from Customers where CountryCode = 'DE'

-- case-of-a-value
select OrderID, case Status when 'S' then 'shipped' when 'C' then 'cancelled' else 'open' end from Orders where OrderDate > '2025-12-20'

-- case-as-a-condition
select OrderID from Orders where case when Express = 1 then Freight > 80 else Freight > 94 end

-- cast-to-a-number
select OrderID, cast(Freight as integer) from Orders where cast(Freight as integer) = 93

-- constants-beside-columns
select 'shop', 1, null, ShipperName from Shippers

-- a-constant-alone
select 'hello', 6 * 7

-- constant-from-a-table
select 1 from Warehouses

-- comparison-as-a-column
select CountryName, Region = 'West', InCustomsUnion and Region <> 'West' from Countries

-- same-column-twice
select Company, Company, City as Company from Customers where City = 'Dublin'

-- virtual-month
select Orders.OrderID, substr(Orders.OrderDate, 1, 7) from Orders where substr(Orders.OrderDate, 1, 7) = '2025-12'

-- function-without-brackets-filled
select abs(LeadDays - 14), SupplierName from Suppliers where max(LeadDays, 14) = 14

-- row-values
select OrderID, LineNo from "Order Lines" where (OrderID, LineNo) > (4998, 1)

-- row-number-of-sqlite
select rowid, Company from Customers where rowid < 6

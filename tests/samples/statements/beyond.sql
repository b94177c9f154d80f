-- union-of-cities
select City from Customers where CountryCode = 'AT' union select City from Suppliers

-- union-all
select Company, Phone from Customers where Segment = 'P' union all select ShipperName, Phone from Shippers

-- except-and-intersect
select City from Suppliers except select City from Customers

-- intersect-cities
select City from Suppliers intersect select City from Customers order by 1

-- union-with-a-condition-after-it
select OrderID from Orders where Status = 'H' union select OrderID from Returns where Quantity > 40

-- window-row-number
select ProductID, row_number() over (order by ListPrice desc, ProductID) as Place from Products where CategoryID = 4

-- window-share
select ProductName, ListPrice / sum(ListPrice) over (partition by CategoryID) as Share from Products where CategoryID < 4

-- running-sum
select OrderID, sum(Freight) over (order by OrderID) from Orders where OrderID <= 50

-- with-clause
with dear as (select * from Products where ListPrice > 100)
select ProductName, SupplierID from dear where SupplierID > 3

-- with-a-clause-in-front
with big as (select CustomerID from Orders where Freight > 85) select Company from Customers where CustomerID in (select CustomerID from big)

-- with-recursive
with recursive n(i) as (select 1 union all select i + 1 from n where i < 20) select i, i * i from n

-- cross-join
select w.WarehouseName, k.CategoryName from Warehouses w cross join Categories k

-- natural-join
select Street, CountryName from Addresses natural join Countries where Region = 'Overseas'

-- natural-join-by-accident
-- Both tables have City and CountryCode.
select Company, SupplierName from Customers natural join Suppliers

-- values-alone
values (1, 'one'), (2, 'two')

-- table-valued-function
select value from json_each('[1, 2, 3]')

-- exists-as-the-only-condition
select WarehouseName from Warehouses where exists (select 1 from Stock where OnHand = 0)

-- nothing-but-a-condition
select 1 where 2 > 1

-- lateral-by-sub-query
select c.Company, (select o.OrderID from Orders o where o.CustomerID = c.CustomerID order by o.OrderDate desc, o.OrderID desc limit 1) as LastOrder
from Customers c where c.Segment = 'P'

-- not-indexed-hint
select OrderID from Orders not indexed where CustomerID = 124

-- collation-in-a-condition
select Company from Customers where City = 'LEIPZIG' collate nocase

-- like-as-a-function
select ProductName from Products where like('%Set%', ProductName)

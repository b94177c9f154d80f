-- distinct-cities
select distinct City from Customers

-- distinct-pairs
SELECT DISTINCT CountryCode, Segment FROM Customers WHERE Newsletter = 1

-- distinct-over-a-join
select distinct c.Company from Customers c, Orders o where c.CustomerID = o.CustomerID and o.Express = 1 and o.OrderDate > '2025-09-30'

-- all-cities
select all City from Customers where CountryCode = 'GB'

-- distinct-in-brackets
select distinct(Region) from Countries

-- distinct-that-changes-nothing
select distinct ProductID, ProductName from Products where CategoryID = 5

-- distinct-and-sorted
-- ordered
select distinct Method from Payments order by Method desc

-- first-ten
-- ordered
select ProductID, ProductName, ListPrice from Products order by ListPrice desc, ProductID limit 10

-- second-ten
-- ordered
select ProductID, ListPrice from Products order by ListPrice desc, ProductID limit 10 offset 10

-- second-ten-by-comma
-- ordered
select ProductID, ListPrice from Products order by ListPrice desc, ProductID limit 10, 10

-- first-of-a-group
-- ordered
select CustomerID, sum(Freight) as Total from Orders group by CustomerID order by Total desc, CustomerID limit 5

-- limit-nothing
-- empty
select Company from Customers limit 0

-- limit-more-than-there-are
select ShipperName from Shippers limit 1000

-- limit-of-none
select WarehouseName from Warehouses limit -1

-- limit-as-an-expression
-- ordered
select OrderID from Orders order by OrderID limit 2 * 3

-- distinct-and-limit
-- ordered
select distinct JobTitle from Employees order by 1 limit 3

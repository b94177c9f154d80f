-- count-all
select count(*) from Customers

-- count-given
select count(Phone) from Customers where CountryCode = 'DE'

-- count-different
select count(distinct City) from Customers

-- largest-and-smallest
select min(OrderDate), max(OrderDate), max(Freight) from Orders

-- orders-per-status
select Status, count(*) from Orders group by Status

-- orders-per-customer
-- ordered
select c.CustomerID, c.Company, count(o.OrderID) as Orders
from Customers c join Orders o on o.CustomerID = c.CustomerID
group by c.CustomerID, c.Company
order by 3 desc, 1

-- orders-per-customer-also-none
select c.Company, count(o.OrderID) from Customers c left join Orders o on o.CustomerID = c.CustomerID
where c.CountryCode = 'IT' group by c.CustomerID, c.Company

-- grouped-by-less-than-shown
-- SQLite takes the country of any customer of the city; here all are the same.
select City, CountryCode, count(*) from Customers group by City

-- grouped-by-more-than-shown
-- Groups of a city come once for each segment.
select City, count(*) from Customers where CountryCode = 'DE' group by City, Segment

-- grouped-without-aggregates
select CountryCode from Customers group by CountryCode

-- group-not-shown
select count(*) from Customers group by CountryCode

-- grouped-by-number
select strftime('%Y', OrderDate), count(*) from Orders group by 1

-- grouped-by-alias
select substr(OrderDate, 1, 7) as Month, sum(Freight) as Freight from Orders group by Month

-- having-many
select City, count(*) from Customers group by City having count(*) > 6

-- having-and-where
SELECT o.EmployeeID, SUM(o.Freight), COUNT(*)
FROM Orders o
WHERE o.OrderDate BETWEEN '2025-01-01' AND '2025-12-31'
GROUP BY o.EmployeeID
HAVING SUM(o.Freight) > 2000 AND COUNT(*) < 200

-- having-either-or
select CustomerID, count(*), max(Freight) from Orders group by CustomerID having count(*) > 60 or max(Freight) >= 94

-- having-negated
select Reason, count(*) from Returns group by Reason having not count(*) between 55 and 65

-- having-of-what-is-not-shown
select Company from Customers c join Orders o on o.CustomerID = c.CustomerID group by c.CustomerID, c.Company having count(*) >= 48

-- having-without-group
select count(*) from Orders having count(*) > 10

-- having-on-a-group-column
select CountryCode, count(*) from Customers group by CountryCode having CountryCode < 'E'

-- having-without-aggregates
select Segment from Customers group by Segment having Segment <> 'R'

-- turnover-per-category
select k.CategoryName, round(sum(l.Quantity * l.UnitPrice * (1 - l.Discount)), 2) as Turnover
from "Order Lines" l
  inner join Products p on p.ProductID = l.ProductID
  inner join Categories k on k.CategoryID = p.CategoryID
group by k.CategoryName

-- average-price
select CategoryID, round(avg(ListPrice), 2) from Products group by CategoryID

-- sum-of-different
select sum(distinct "Pack Size") from Products

-- count-of-nothing
select count(*) from Customers where City = 'Nowhere'

-- sum-of-nothing
-- One row that says nothing.
select sum(Freight) from Orders where OrderID < 0

-- groups-of-nothing
-- empty
select City, count(*) from Customers where City = 'Nowhere' group by City

-- aggregate-in-an-expression
select CountryCode, max(CreditLimit) - min(CreditLimit) from Customers group by CountryCode

-- aggregate-of-a-condition
select Segment, sum(Newsletter = 1), sum(case when Phone is null then 1 else 0 end) from Customers group by Segment

-- sorted-by-an-aggregate
-- ordered
select City, count(*) from Customers group by City order by count(*) desc, City

-- aggregate-with-filter
select CountryCode, count(*) filter (where Segment = 'W') from Customers group by CountryCode

-- row-of-the-largest
-- SQLite gives the name that belongs to the largest salary.
select FirstName, LastName, max(Salary) from Employees

-- names-in-one-cell
select length(group_concat(ShipperName, '; ')) from Shippers

-- in-a-select
select Company, City from Customers where CustomerID in (select CustomerID from Orders where Freight > 90)

-- not-in-a-select
select SupplierName from Suppliers where SupplierID not in (
  select p.SupplierID from Products p join "Order Lines" l on l.ProductID = p.ProductID where l.Quantity > 58)

-- not-in-a-select-with-nulls
-- The superiors' column has an unknown one, so nobody is known to be no superior.
-- empty
select LastName from Employees where EmployeeID not in (select ReportsTo from Employees)

-- not-before-in-a-select
select ProductName from Products where not ProductID in (select ProductID from "Order Lines")

-- exists-an-order
select c.Company from Customers c
where exists (select 1 from Orders o where o.CustomerID = c.CustomerID and o.Status = 'C')

-- no-order-exists
select Customers.Company, Customers.City from Customers
where not exists (select 1 from Orders x where x.CustomerID = Customers.CustomerID)

-- no-order-exists-with-star
SELECT c.Company FROM Customers AS c WHERE NOT EXISTS (SELECT * FROM Orders AS o WHERE c.CustomerID = o.CustomerID)

-- above-the-average
select ProductName, ListPrice from Products where ListPrice > (select avg(ListPrice) from Products)

-- select-on-the-left
select ProductName from Products where (select max(ListPrice) from Products) = ListPrice

-- as-much-as-wojcik
select FirstName, LastName from Employees where Salary >= (select Salary from Employees where LastName = 'Wójcik')

-- select-as-a-column
select c.Company, (select count(*) from Orders o where o.CustomerID = c.CustomerID) as Orders from Customers c where c.CountryCode = 'NL'

-- select-as-a-table
select t.City, t.N from (select City, count(*) as N from Customers group by City) t where t.N > 5

-- select-in-a-select-in-a-select
select SupplierName from Suppliers where SupplierID in (
  select SupplierID from Products where CategoryID in (
    select CategoryID from Categories where CategoryName like 'P%'))

-- dearest-of-its-category
select p.ProductName, p.CategoryID, p.ListPrice
from Products p
where p.ListPrice = (select max(q.ListPrice) from Products q where q.CategoryID = p.CategoryID)

-- two-columns-in-a-select
select OrderID, LineNo, Quantity from "Order Lines" where (OrderID, LineNo) in (select OrderID, LineNo from Returns where Refunded = 0)

-- between-selects
select ProductName, ListPrice from Products
where ListPrice between (select min(ListPrice) + 100 from Products) and (select max(ListPrice) - 50 from Products)

-- join-with-a-select
select c.Company, x.Last
from Customers c
join (select CustomerID, max(OrderDate) as Last from Orders group by CustomerID) x on x.CustomerID = c.CustomerID
where x.Last < '2023-01-01'

-- sub-query-with-distinct-and-brackets
select ProductName from Products
where ProductID in ((select distinct ProductID from "Order Lines" where Quantity = 60)) or ProductID in (1, 2)

-- names-inside-and-outside-alike
-- The inner column hides the outer one of the same name.
select CustomerID, Company from Customers where exists (select 1 from Addresses where CustomerID = 1 and City = 'Odense')
  and CountryCode = 'DK'

-- in-a-select-and-more
select o.OrderID, o.Freight from Orders o
where o.CustomerID in (select CustomerID from Customers where City = 'Lyon') and (o.Express = 1 or not o.Freight < 70)

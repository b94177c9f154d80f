-- comma-style
select Customers.Company, Orders.OrderID
from Customers, Orders
where Customers.CustomerID = Orders.CustomerID and Orders.Status = 'C'

-- comma-style-with-aliases
select c.Company, co.CountryName from Customers c, Countries co where c.CountryCode = co.CountryCode and co.Region = 'North'

-- comma-style-condition-at-the-end
SELECT p.ProductName, s.SupplierName, k.CategoryName
FROM Products p, Suppliers s, Categories k
WHERE p.ListPrice > 60 AND s.Preferred = 1 AND p.SupplierID = s.SupplierID AND k.CategoryID = p.CategoryID

-- join-on
select Customers.Company, Countries.CountryName
from Customers
join Countries on Countries.CountryCode = Customers.CountryCode
where Countries.InCustomsUnion = 0

-- inner-join-sides-turned
SELECT p.ProductName, k.CategoryName
FROM Categories AS k
INNER JOIN Products AS p ON k.CategoryID = p.CategoryID
WHERE k.CategoryName = 'Kitchen'

-- join-in-brackets
-- As query designers of office programs write it.
SELECT Customers.Company, Orders.OrderID, Shippers.ShipperName
FROM (Customers INNER JOIN Orders ON Customers.CustomerID = Orders.CustomerID)
INNER JOIN Shippers ON Orders.ShipperID = Shippers.ShipperID
WHERE Orders.OrderDate >= '2025-12-01'

-- five-tables
select c.Company, o.OrderID, l.LineNo, p.ProductName, k.CategoryName
from Customers c
  join Orders o on o.CustomerID = c.CustomerID
  join "Order Lines" l on l.OrderID = o.OrderID
  join Products p on p.ProductID = l.ProductID
  join Categories k on k.CategoryID = p.CategoryID
where c.CountryCode = 'JP' and k.CategoryName like '%Tools'

-- join-for-counting-rows-only
-- No column of Orders is named, yet each customer comes once for each order.
select c.Company from Customers c join Orders o on o.CustomerID = c.CustomerID where c.City = 'Linz'

-- join-for-the-condition-only
select c.Company, c.City from Customers c, Orders o where o.CustomerID = c.CustomerID and o.Freight > 90

-- join-using
select o.OrderID, s.ShipperName from Orders o join Shippers s using (ShipperID) where o.OrderDate like '2025-12%'

-- two-column-join
select r.ReturnID, r.Reason, l.Quantity, r.Quantity
from Returns r
join "Order Lines" l on l.OrderID = r.OrderID and l.LineNo = r.LineNo
where r.ReturnedOn >= '2025-01-01'

-- half-of-a-two-column-join
-- One of the two columns is forgotten, so that returns meet the other lines of their orders as well.
select r.ReturnID, l.LineNo from Returns r join "Order Lines" l on l.OrderID = r.OrderID where r.ReturnedOn >= '2025-06-01'

-- half-in-on-half-in-where
select r.ReturnID, l.ProductID from Returns r join "Order Lines" l on l.OrderID = r.OrderID
where l.LineNo = r.LineNo and r.Refunded = 0

-- left-join
select c.Company, m.LastName
from Customers c
left join Employees m on m.EmployeeID = c.AccountManagerID
where c.Segment = 'P'

-- left-join-made-inner-by-where
select c.Company, m.LastName from Customers c left outer join Employees m on m.EmployeeID = c.AccountManagerID
where m.LastName = 'Gruber'

-- inner-where-the-model-is-outer
select c.Company, m.LastName from Customers c join Employees m on m.EmployeeID = c.AccountManagerID where c.CountryCode = 'DE'

-- left-where-the-model-is-inner
select o.OrderID, s.ShipperName from Orders o left join Shippers s on s.ShipperID = o.ShipperID where o.OrderDate > '2025-12-10'

-- left-join-with-a-condition-in-on
select c.Company, o.OrderID
from Customers c
left join Orders o on o.CustomerID = c.CustomerID and o.Status = 'C'
where c.CountryCode in ('AT', 'CH')

-- customers-without-orders
select c.Company from Customers c left join Orders o on o.CustomerID = c.CustomerID where o.OrderID is null

-- right-join
select w.WarehouseName, s.OnHand from Stock s right join Warehouses w on w.WarehouseID = s.WarehouseID and s.OnHand > 250

-- full-join
select s.SupplierName, w.WarehouseName from Suppliers s full outer join Warehouses w on w.City = s.City

-- staff-and-superiors
select e.LastName, b.LastName from Employees e join Employees b on b.EmployeeID = e.ReportsTo

-- staff-and-superiors-as-in-the-model
select Employees.FirstName, Employees.LastName, Superiors.LastName as Chief
from Employees, Employees Superiors
where Employees.ReportsTo = Superiors.EmployeeID

-- staff-and-superiors-turned
-- The aliases say the opposite of what the condition does.
select Employees.LastName, Superiors.LastName from Employees, Employees as Superiors where Superiors.ReportsTo = Employees.EmployeeID

-- staff-without-superiors
select e.LastName from Employees e left join Employees b on e.ReportsTo = b.EmployeeID where b.EmployeeID is null

-- staff-three-levels
select a.LastName, b.LastName, c.LastName
from Employees a join Employees b on a.ReportsTo = b.EmployeeID join Employees c on b.ReportsTo = c.EmployeeID

-- colleagues-of-the-same-day
select a.LastName, b.LastName from Employees a, Employees b where a.WorkStarts = b.WorkStarts and a.EmployeeID < b.EmployeeID

-- delivery-addresses
select o.OrderID, a.Street, a.City from Orders o join Addresses a on a.AddressID = o.ShippingAddressID where a.City = 'Wien' or a.City = 'Praha'

-- invoice-addresses
select o.OrderID, a.Street from Orders o join Addresses a on o.BillingAddressID = a.AddressID where a.City = 'Graz'

-- both-addresses
select o.OrderID, ShipTo.City, BillTo.City
from Orders o, Addresses ShipTo, Addresses BillTo
where o.ShippingAddressID = ShipTo.AddressID and o.BillingAddressID = BillTo.AddressID and ShipTo.City <> BillTo.City
  and o.OrderDate >= '2025-01-01'

-- both-addresses-names-exchanged
select o.OrderID, ShipTo.City, BillTo.City
from Orders o
join Addresses ShipTo on ShipTo.AddressID = o.BillingAddressID
join Addresses BillTo on BillTo.AddressID = o.ShippingAddressID
where ShipTo.City <> BillTo.City and o.OrderDate >= '2025-07-01'

-- addresses-of-customers
-- A link that the model does not know.
select c.Company, a.Street from Customers c join Addresses a on a.CustomerID = c.CustomerID where c.CountryCode = 'DK'

-- addresses-alone
select Street, City from Addresses where CountryCode = 'IT'

-- supplier-countries
select s.SupplierName, c.CountryName from Suppliers s join Countries c on c.CountryCode = s.CountryCode

-- alias-of-another-table
-- The alias is the name that the model gives to another table.
select Products.SupplierName from Suppliers Products where Products.LeadDays > 14

-- join-by-city
select c.Company, s.SupplierName from Customers c join Suppliers s on s.City = c.City

-- join-by-another-key
select o.OrderID, c.Company from Orders o join Customers c on c.AccountManagerID = o.EmployeeID
where c.CountryCode = 'SE' and o.OrderDate >= '2025-12-20'

-- join-by-more-than-the-key
select c.Company, o.OrderID from Customers c join Orders o on o.CustomerID = c.CustomerID and o.EmployeeID = c.AccountManagerID
where o.OrderDate >= '2025-11-20'

-- join-by-an-inequality
select a.ProductName, b.ProductName from Products a join Products b on b.ListPrice > a.ListPrice + 180

-- join-without-a-condition
select w.WarehouseName, s.ShipperName from Warehouses w, Shippers s

-- database-before-the-table
select main.Customers.Company, City from main.Customers where main.Customers.Segment = 'T'

-- unqualified-columns-of-two-tables
select Company, OrderDate, Freight from Customers, Orders
where Orders.CustomerID = Customers.CustomerID and Freight > 88 and Newsletter = 1

-- stock-of-warehouses
select Warehouses.WarehouseName, Products.ProductName, Stock.OnHand
from Stock inner join Warehouses on Stock.WarehouseID = Warehouses.WarehouseID
           inner join Products on Stock.ProductID = Products.ProductID
where Stock.OnHand = 0 or Stock.OnHand > 220

-- same-table-without-need
-- Every customer comes as often as there are customers of the same country.
select a.Company from Customers a, Customers b where a.CountryCode = b.CountryCode and a.CountryCode in ('UA', 'JP')

-- join-condition-negated
select s.ShipperName, o.OrderID from Orders o, Shippers s
where not o.ShipperID <> s.ShipperID and o.OrderDate = '2025-11-18'

-- join-condition-under-or
select distinct o.OrderID, s.ShipperName from Orders o, Shippers s
where o.OrderDate = '2025-11-18' and (o.ShipperID = s.ShipperID or o.Freight > 60)
